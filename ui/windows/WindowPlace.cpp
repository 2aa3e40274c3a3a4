#include "ui/windows/WindowPlace.h"

#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "ui/windows/ScrolledForm.h"
#include "ui/windows/TightForm.h"

namespace Ledgrove {

namespace {

/// The frame is not known before the window is shown. Title bars are about 30 pixels high, side edges 1 or 2
/// wide. The largest window leaves this much on both sides, so that it is still in the middle.
constexpr int sideEdges = 5;
constexpr int titleAndBottom = 37;

QSize NaturalSize(const QWidget& window) {
    return SizeAtScale(window.sizeHint(), window.devicePixelRatioF());
}

/// The size of the window if it has this much room.
QSize SizeIn(QWidget& window, const QSize& room, int laterHeight) {
    QSize natural = NaturalSize(window);
    auto* form = window.findChild<ScrolledForm*>({}, Qt::FindDirectChildrenOnly);
    const bool fits = natural == natural.boundedTo(room - QSize(0, laterHeight));
    if (fits || !form)
        return natural.boundedTo(room);
    // The margins and the row of buttons are around the form.
    const QSize view = room - QSize(0, laterHeight) - (natural - form->sizeHint());
    // Twice at most: further halves are too small to help. A caption may get another digit later.
    const int laterDigits = 2 * form->fontMetrics().averageCharWidth();
    for (int pass = 0; pass < 2; ++pass) {
        if (form->SizeWithoutScrolling(view.width()).width() + laterDigits > view.width())
            Tighten(window, Qt::Horizontal);
    }
    // Lines wrap in a narrower form, so the height comes second.
    if (form->SizeWithoutScrolling(view.width()).height() > view.height())
        Tighten(window, Qt::Vertical);
    natural = NaturalSize(window);
    if (form->SizeWithoutScrolling(view.width()).height() > view.height())
        natural.rwidth() += form->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return natural.boundedTo(room);
}

} // namespace

QSize RoomWithin(const QRect& available) {
    return available.size() - QSize(2 * sideEdges, titleAndBottom);
}

QSize SizeAtScale(const QSize& hint, qreal scale) {
    return scale == std::floor(scale) ? hint : hint + QSize(1, 1);
}

QPoint PlaceWithin(const QRect& available, const QRect& whole, const QSize& window) {
    const QSize framed = window + QSize(sideEdges, titleAndBottom);
    const QPoint middle(whole.left() + (whole.width() - window.width()) / 2,
                        whole.top() + (whole.height() - window.height()) / 2);
    // The left and top edges count more than the right and bottom ones.
    return {std::max(available.left(), std::min(middle.x(), available.right() + 1 - framed.width())),
            std::max(available.top(), std::min(middle.y(), available.bottom() + 1 - framed.height()))};
}

void CentreOnScreen(QWidget& window, int laterHeight) {
    const QRect available = window.screen()->availableGeometry();
    window.resize(SizeIn(window, RoomWithin(available), laterHeight));
    window.move(PlaceWithin(available, window.screen()->geometry(), window.size()));
}

} // namespace Ledgrove
