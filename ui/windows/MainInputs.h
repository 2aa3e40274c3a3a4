#pragma once

#include <QWidget>

namespace Ledgrove {

/// The height of the emblem above the buttons, in pixels. Its picture loads after the first paint.
inline constexpr int EmblemHeight = 72;

/// The upper part of the main window: the inputs of the buyer and the two homes, and the column of buttons.
/// It creates the controls and their layout; the window connects them.
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
