#include "device/DevicePath.h"

int main()
{
    return devicePath("/dev/x") == qEnvironmentVariable("ZELL_DEVICE_ROOT") + "/dev/x" ? 0 : 1;
}
