#pragma once

#include <QLabel>
#include <QPushButton>
#include <functional>

#include "engine/MainScreen.h"

namespace Ledgrove {

/// The strip of the Welcome tab that leads to the first result: what to do next, a button that goes there,
/// and a sample for whoever wants to look first.
class WelcomeHint : public QWidget {
    Q_OBJECT

public:
    explicit WelcomeHint(QWidget* parent = nullptr);

    /// `openSample` fills in a sample; without one its button does not appear.
    void Connect(const MainScreen& screen, std::function<void()> openSample);
    void Refresh();

signals:
    /// The button was pressed: the control of this name is to be used next.
    void Chosen(const QString& control);

private:
    const MainScreen* m_screen = nullptr;
    QLabel* m_sentence;
    QPushButton* m_go;
    QPushButton* m_sample;
};

} // namespace Ledgrove
