#include "ui/windows/WindowPlace.h"

#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "ui/windows/ScrolledForm.h"
#include "ui/windows/TightForm.h"

namespace Ledgrove {

namespace {

/// The frame is not known before the window is shown. Title bars are about 30 pixels high, side edges 1 or 2
/// wide. The largest window leaves this much on both sides, so that it is still in the middle.
constexpr int sideEdges = 5;
constexpr int titleAndBottom = 37;

/// What of the window surrounds its form: margins and the row of buttons.
QSize Around(const QWidget& window, const ScrolledForm& form) {
    return window.sizeHint() - form.sizeHint();
}

bool Scrolls(const ScrolledForm& form, const QSize& view, Qt::Orientation direction) {
    const QSize needed = form.SizeWithoutScrolling(view.width());
    return direction == Qt::Horizontal ? needed.width() > view.width() : needed.height() > view.height();
}

/// The window's natural size if it has this much room.
QSize NaturalSize(QWidget& window, const QSize& room, int laterHeight) {
    const auto* form = window.findChild<ScrolledForm*>({}, Qt::FindDirectChildrenOnly);
    if (!form)
        return window.sizeHint();
    const QSize later(0, laterHeight);
    // The width comes first, because lines wrap in a narrower form.
    for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
        if (Scrolls(*form, room - Around(window, *form) - later, direction))
            Tighten(window, direction);
    }
    QSize natural = window.sizeHint();
    if (Scrolls(*form, room - Around(window, *form) - later, Qt::Vertical))
        natural.rwidth() += form->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return natural;
}

} // namespace

QSize RoomWithin(const QRect& available) {
    return available.size() - QSize(2 * sideEdges, titleAndBottom);
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
    const QSize room = RoomWithin(available);
    window.resize(NaturalSize(window, room, laterHeight).boundedTo(room));
    window.move(PlaceWithin(available, window.screen()->geometry(), window.size()));
}

} // namespace Ledgrove
