#pragma once

#include "app/windows/ChartLoader.h"
#include "app/windows/CurrentFile.h"
#include "app/windows/MainMenu.h"
#include "bench/Sample.h"
#include "ui/windows/ResultPanels.h"
#include "ui/windows/frmMain.h"

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace Ledgrove::Bench {

/// Shows no messages and saves nothing.
class SilentHost : public Host {
public:
    MessageAnswer ShowMessage(const Message& message) override {
        return message.Buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Ok;
    }
    void RunPendingEvents() override {}
};

/// The program's main window with menu bar, current file and charts, showing the sample.
class RealWindow : public QObject {
public:
    RealWindow()
        : m_session(SampleSession())
        , m_window(m_session, m_host, Actions())
        , m_file(m_window, m_session, m_host, RecentFiles(m_folder.filePath("recent.ini")), {}) {
        BuildMainMenu(
            m_file, {m_window, m_session, m_host, m_file, {}, LastChoices(m_folder.filePath("recent.ini"))});
        qApp->installEventFilter(this);
        m_window.show();
        if (!QTest::qWaitForWindowExposed(&m_window))
            qFatal("the window does not appear");
        PaintAll();
    }

    void ShowTab(int tab) {
        m_window.findChild<ResultPanels*>()->setCurrentIndex(tab);
        PaintAll();
    }

    frmMain& Main() { return m_window; }
    Session& State() { return m_session; }
    QLineEdit& FieldNamed(const QString& name) const { return *m_window.findChild<QLineEdit*>(name); }

    /// Replaces the field's text with `text`; the caller sends Enter.
    static void Type(QLineEdit& field, const QString& text) {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
    }

    /// Lets the window process events until no paint is pending. The chart is painted a few events after its
    /// figures change, so one quiet turn is not enough.
    void PaintAll() {
        for (int quietTurns = 0; quietTurns < 3; ++quietTurns) {
            const int before = m_paints;
            QCoreApplication::processEvents();
            if (m_paints != before)
                quietTurns = 0;
        }
    }

    int ChartPaints() const { return m_chartPaints; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++m_paints;
            if (watched->parent() && watched->parent()->inherits("QChartView"))
                ++m_chartPaints;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static MainActions Actions() {
        MainActions actions;
        actions.Charts = [] { return LoadCharts(QCoreApplication::applicationDirPath()); };
        return actions;
    }

    QTemporaryDir m_folder;
    Session m_session;
    SilentHost m_host;
    frmMain m_window;
    CurrentFile m_file;
    int m_paints = 0;
    int m_chartPaints = 0;
};

} // namespace Ledgrove::Bench
