#pragma once

#include <QWidget>

namespace Ledgrove {

/// The room that the emblem above the buttons has, in pixels. Its picture comes after the first paint.
inline constexpr int EmblemHeight = 72;

/// The upper part of the main window: the buyer's and the two homes' inputs and the column of buttons. Only
/// the controls and their places; the window connects them.
class MainInputs : public QWidget {
    Q_OBJECT

public:
    explicit MainInputs(QWidget* parent = nullptr);

private:
    QWidget* MakeBuyer();
    QWidget* MakeHomes();
    QWidget* MakeButtons();
};

} // namespace Ledgrove
