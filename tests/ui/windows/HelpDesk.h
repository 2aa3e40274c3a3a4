#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>

#include "WindowTest.h"
#include "ui/windows/HelpPrinter.h"
#include "ui/windows/HelpWindow.h"

// Shared by the tests of the help.
namespace Ledgrove {

inline constexpr const char* LongHelp =
    "<html><body><h1><a name=\"top\">Contents</a></h1><p>See <a href=\"#ctx504\">the cash topic</a>.</p>"
    "<p>%1</p><h2><a name=\"ctx501\">Welcome topic</a></h2><p>%1</p>"
    "<h2><a name=\"ctx504\">Cash topic</a></h2><p>%1</p>"
    "<p><a href=\"http://example.invalid/\">far</a> <a href=\"file:///etc/passwd\">near</a></p>"
    "<p>The word grove is here, Grove is here, and GROVE is here.</p></body></html>";

inline void WriteHelpFile(const QTemporaryDir& folder, const QByteArray& content,
                          const QString& name = "LEDGROVE.HLP") {
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// A window that prints the help opened above it.
class PrintingWindow : public QWidget, public HelpPrinter {
public:
    void PrintHelp(const QTextDocument& help, QWidget& above) override {
        Printed += help.toPlainText();
        Above = &above;
    }

    QStringList Printed;
    QWidget* Above = nullptr;
};

/// The help window, open at a topic of a help of several screens.
template <typename Owner = QWidget>
struct OpenHelp : FormDriver {
    explicit OpenHelp(const QString& anchor = "ctx501") {
        WriteHelpFile(Folder,
                      QString(LongHelp).arg(QString("Words fill this place. ").repeated(800)).toUtf8());
        Window = new HelpWindow(&Below);
        Form = Window;
        Open(anchor);
    }
    void Open(const QString& anchor) {
        Window->ShowTopic(Folder.filePath("LEDGROVE.HLP"), anchor);
        if (!QTest::qWaitForWindowActive(Window))
            qFatal("the help does not become active");
    }
    QTextBrowser& Text() const { return Find<QTextBrowser>("HelpText"); }
    QString Topic() const { return Text().source().fragment(); }
    QString TopLine() const { return Text().cursorForPosition({0, 0}).block().text(); }
    QString Found() const { return LabelText("lblFound"); }
    QString Status() const { return Find("lblHelpStatus").isVisible() ? LabelText("lblHelpStatus") : ""; }
    QString Selected() const { return Text().textCursor().selectedText(); }
    void Seek(const QString& text) const {
        Press(Qt::Key_F, Qt::ControlModifier);
        for (const QChar letter : text)
            QTest::keyClick(Window->windowHandle(), letter.toLatin1());
    }
    void Click(const QString& href) const { emit Text().anchorClicked(Text().source().resolved(QUrl(href))); }

    QTemporaryDir Folder;
    Owner Below;
    HelpWindow* Window;
};

} // namespace Ledgrove
