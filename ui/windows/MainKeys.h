#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QWidget>
#include <functional>

#include "ui/Entry.h"

namespace Ledgrove {

/// The keys that a window handles before its controls: Down and Up move between fields, F1 opens the help.
/// Enter moves on from an option, a check box, a pick list or a tab; fields and buttons handle it themselves.
class MainKeys : public QObject {
    Q_OBJECT

public:
    MainKeys(QWidget& window, EntryFocus& focus, std::function<void()> help);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Take(const QKeyEvent& key, const QWidget& control);

    QWidget& m_window;
    EntryFocus& m_focus;
    std::function<void()> m_help;
};

} // namespace Ledgrove
