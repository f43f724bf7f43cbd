// Preloaded into the program, or linked into a test: a plain file of the screen's size takes the
// place of the frame buffer (linuxfb:fb=FILE). The driver's calls are answered for it; how many
// bits a dot has, 16 or 32, follows from its length.

#include <cstdarg>
#include <linux/fb.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
constexpr unsigned width = 854;
constexpr unsigned height = 480;
constexpr unsigned dots = width * height;

fb_var_screeninfo variableInfo(unsigned bytes)
{
    fb_var_screeninfo info{};
    info.xres = info.xres_virtual = width;
    info.yres = info.yres_virtual = height;
    info.bits_per_pixel = bytes / dots * 8;
    const bool isShort = info.bits_per_pixel == 16;
    info.red = {.offset = isShort ? 11U : 16U, .length = isShort ? 5U : 8U, .msb_right = 0};
    info.green = {.offset = isShort ? 5U : 8U, .length = isShort ? 6U : 8U, .msb_right = 0};
    info.blue = {.offset = 0, .length = isShort ? 5U : 8U, .msb_right = 0};
    // A panel of 110 x 62 mm.
    info.width = 110;
    info.height = 62;
    return info;
}

fb_fix_screeninfo fixedInfo(unsigned bytes)
{
    fb_fix_screeninfo info{};
    info.smem_len = bytes;
    info.line_length = bytes / height;
    return info;
}
} // namespace

extern "C" int ioctl(int file, unsigned long request, ...) noexcept
{
    va_list arguments;
    va_start(arguments, request);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    struct stat status
    {
    };
    const bool isAsked = request == FBIOGET_VSCREENINFO || request == FBIOGET_FSCREENINFO;
    if (!isAsked || fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        return int(syscall(SYS_ioctl, file, request, argument));
    if (request == FBIOGET_VSCREENINFO)
        *static_cast<fb_var_screeninfo *>(argument) = variableInfo(unsigned(status.st_size));
    else
        *static_cast<fb_fix_screeninfo *>(argument) = fixedInfo(unsigned(status.st_size));
    return 0;
}
