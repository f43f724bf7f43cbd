#pragma once

#include <optional>

/// Where the main screen's pages and background lie, as plain arithmetic.
///
/// The strip of pages has a position in units of one page: 0 shows PM2.5, -1 temperature, -2
/// humidity. Slides run in frames, thousandths of a page. All results are pixels unless said
/// otherwise.
namespace Strip {

inline constexpr float framesPerPage = 1000.0F;

/// Gives the frame of @p position, truncated.
int frameAt(float position);

/// Places the left edge of the page that is number @p gridX (from 0) on the strip.
int pageX(int gridX, float position, int viewWidth);

/// Places the left edge of a background @p pictureWidth wide, which moves at a fifth of the pages'
/// speed.
int backgroundX(float position, int viewWidth, int pictureWidth);

/// Tells whether a swipe may bring the page after / before the one at @p position.
bool hasNext(float position);
bool hasPrevious(float position);

/// Tells which page is nearest to @p position, from 0; beyond the last one a number without a page.
int nearestPage(float position);

/// Tells how opaque a page is whose left edge is at @p x: it fades where its number would run under
/// the tiles and the side bar, and beside the view there is nothing to be seen of it.
double opacityAt(int x, int viewWidth);

/// Tells by how many pages a tap on the tile numbered @p page slides (negative: onwards), nothing
/// where it does not slide. The tiles lead one page further than their number says, and from the
/// first two pages even beyond the last.
std::optional<int> slideToChosen(float position, int page);

} // namespace Strip
