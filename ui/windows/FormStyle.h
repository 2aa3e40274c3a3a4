#pragma once

#include <QProxyStyle>

namespace Ledgrove {

/// The desktop's style. Where that is the toolkit's own, "fusion", it is drawn with less work, to the same
/// look: frames of tabs and group boxes as opaque rectangles, the arrow of a menu bar that is too narrow
/// without a file; those of fields once for all fields of a size. The toolkit blends the first two line by
/// line on several threads, forty times in the main window, and reads a picture, with every plugin for
/// pictures.
class FormStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// `base` becomes this style's own.
    explicit FormStyle(QStyle* base);

    /// For the whole program, with letters set side by side: kerning and ligatures, which Latin letters in a
    /// form do without, would take a tenth of the start. Before the first window.
    static void Use();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

private:
    bool IsToolkitsOwn() const;
    void DrawTabFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
    void DrawFieldFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
    void DrawGroupFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
};

} // namespace Ledgrove
