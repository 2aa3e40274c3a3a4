#pragma once

#include <QRect>
#include <QSize>

class QWidget;

// The size and the place of a window on its screen.
namespace Ledgrove {

/// The largest window that fits into `available`, with room for the frame that the window manager adds.
QSize RoomWithin(const QRect& available);

/// The size to ask for so that the window gets at least `hint` at this scale. At a fractional scale, the
/// window system rounds to whole pixels of the screen, which may be one less, and a form would scroll for it.
QSize SizeAtScale(const QSize& hint, qreal scale);

/// Where a window of this size goes, with its frame: in the middle of the screen `whole`, and moved from
/// there as far as needed to lie within `available`. If it is too large, its title bar stays within.
QPoint PlaceWithin(const QRect& available, const QRect& whole, const QSize& window);

/// Gives the window its natural size and centres it on its screen. If its ScrolledForm would have to scroll
/// there, the form becomes tighter first. `laterHeight` is that of a menu bar which the window gets later.
void CentreOnScreen(QWidget& window, int laterHeight = 0);

} // namespace Ledgrove
