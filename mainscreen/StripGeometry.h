#pragma once

#include <optional>

/// Where the main screen's pages and background lie, as plain arithmetic.
///
/// The strip of pages has a position in units of one page: 0 shows PM2.5, -1 temperature, -2
/// humidity. Slides run in frames, thousandths of a page. All results are pixels unless said
/// otherwise.
namespace Strip {

inline constexpr float framesPerPage = 1000.0F;

/// The frame of @p position, truncated.
int frameAt(float position);

/// Left edge of the page that is number @p gridX (from 0) on the strip.
int pageX(int gridX, float position, int viewWidth);

/// Left edge of a background @p pictureWidth wide, which moves at a fifth of the pages' speed.
int backgroundX(float position, int viewWidth, int pictureWidth);

/// Whether a swipe may bring the page after / before the one at @p position.
bool hasNext(float position);
bool hasPrevious(float position);

/// By how many pages a tap on the tile numbered @p page slides (negative: onwards), nothing where
/// it does not slide. @p page is compared with the position as it stands, although the tiles count
/// from 1 and the strip from 0: that is how the tiles of this device lead one page further, and
/// from the first two pages even beyond the last.
std::optional<int> slideToChosen(float position, int page);

} // namespace Strip
