#include "mainscreen/StripGeometry.h"

#include "pages/Quantity.h"

#include <algorithm>
#include <cmath>

namespace Strip {

int frameAt(float position)
{
    return int(position * framesPerPage);
}

int pageX(int gridX, float position, int viewWidth)
{
    return viewWidth * gridX + int(position * float(viewWidth));
}

int backgroundX(float position, int viewWidth, int pictureWidth)
{
    const int margin = pictureWidth / 2 - viewWidth / 2 - viewWidth / 5;
    return -int(margin - viewWidth * double(position) / 5.0);
}

bool hasNext(float position)
{
    constexpr int lastPage = int(quantities.size()) - 1;
    return int(-(position - 1)) <= lastPage;
}

bool hasPrevious(float position)
{
    return position < 0;
}

int nearestPage(float position)
{
    return int(std::lround(-position));
}

double opacityAt(int x, int viewWidth)
{
    constexpr double fadesFrom = 60;
    constexpr double fadesOver = 240;
    if (x <= 0)
        return x > -viewWidth ? 1 : 0;
    return std::clamp(1 - (x - fadesFrom) / fadesOver, 0.0, 1.0);
}

// Kept[tiles-lead-further]: tiles count from 1, the strip from 0.
std::optional<int> slideToChosen(float position, int page)
{
    if (int(-position) == page)
        return std::nullopt;
    return int(float(-page) - position);
}

} // namespace Strip
