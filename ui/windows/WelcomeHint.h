#pragma once

#include <QLabel>
#include <QPushButton>
#include <functional>

#include "engine/MainScreen.h"

namespace Ledgrove {

/// The strip on the Welcome tab that leads to the first result: the next step, a button that goes there, and
/// a sample.
class WelcomeHint : public QWidget {
    Q_OBJECT

public:
    explicit WelcomeHint(QWidget* parent = nullptr);

    /// `openSample` fills in a sample. Without it the sample button is hidden.
    void Connect(const MainScreen& screen, std::function<void()> openSample);
    void Refresh();

signals:
    /// The button was pressed; the focus should move to the control of this name.
    void Chosen(const QString& control);

private:
    const MainScreen* m_screen = nullptr;
    QLabel* m_sentence;
    QPushButton* m_go;
    QPushButton* m_sample;
};

} // namespace Ledgrove
