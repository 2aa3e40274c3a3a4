#include <QPushButton>

#include "HelpDesk.h"
#include "ui/MainScreenRules.h"
#include "ui/windows/frmOptions.h"

using namespace Ledgrove;

namespace {

void WriteHelp(const QTemporaryDir& folder, const QString& name) {
    WriteHelpFile(
        folder,
        "<html><body><a name=\"ctx501\">Welcome topic</a><p><a name=\"ctx504\">Cash topic</a></body></html>",
        name);
}

QTextBrowser* ShownHelp(const OpenWindow& open) {
    auto* help = open.Window->findChild<HelpWindow*>();
    return help && help->isVisible() ? help->findChild<QTextBrowser*>() : nullptr;
}

/// The main window with a help file, and its only help window.
struct HelpOverDialogs : OpenWindow {
    HelpOverDialogs() {
        WriteHelp(Folder, "LEDGROVE.HLP");
        State.Folder = Folder.path().toStdString();
        State.HelpFile = "LEDGROVE.HLP";
    }

    HelpWindow* Help() const {
        const auto all = Window->findChildren<HelpWindow*>();
        return all.size() == 1 ? all.front() : nullptr;
    }

    QTemporaryDir Folder;
};

std::optional<std::string> ComplaintAbout(const QByteArray& content) {
    const QTemporaryDir folder;
    WriteHelpFile(folder, content);
    return HelpComplaint(folder.path().toStdString(), "LEDGROVE.HLP");
}

} // namespace

class HelpWindowTest : public QObject {
    Q_OBJECT

private slots:
    void f1OpensTheTopicOfTheCurrentTab_data();
    void f1OpensTheTopicOfTheCurrentTab();
    void helpButtonOpensTheTopicToo();
    void dialogBorrowsTheOpenHelp();
    void helpOpenedInADialogStaysOpen();
    void missingFileIsNamedWithItsFolder();
    void missingFileNameSaysWhereToSetIt();
    void directoryInPlaceOfTheFileCannotBeRead();
    void unusableFilesAreReported_data();
    void unusableFilesAreReported();
    void unreadableFileIsReported();
};

void HelpWindowTest::f1OpensTheTopicOfTheCurrentTab_data() {
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("anchor");
    QTest::addRow("Welcome") << 0 << "ctx501";
    QTest::addRow("Cash Flow") << 1 << "ctx504";
    QTest::addRow("More Home") << 2 << "ctx505";
    QTest::addRow("Affordability") << 3 << "ctx506";
    QTest::addRow("Summary") << 4 << "ctx507";
}

void HelpWindowTest::f1OpensTheTopicOfTheCurrentTab() {
    QFETCH(int, tab);
    QFETCH(QString, anchor);
    QTemporaryDir folder;
    WriteHelp(folder, "LEDGROVE.HLP");
    OpenWindow open;
    open.State.Folder = folder.path().toStdString();
    open.State.HelpFile = "LEDGROVE.HLP";
    Module1::ClickTab(open.State, open.Outside, tab);
    open.Outside.Messages.clear();
    open.Press(Qt::Key_F1);
    QVERIFY(open.Outside.Messages.empty());
    QVERIFY(ShownHelp(open));
    QCOMPARE(ShownHelp(open)->source().fragment(), anchor);
    QVERIFY(ShownHelp(open)->toPlainText().contains("Cash topic"));
}

void HelpWindowTest::helpButtonOpensTheTopicToo() {
    QTemporaryDir folder;
    WriteHelp(folder, "help.html");
    OpenWindow open;
    open.State.Folder = folder.path().toStdString();
    open.State.HelpFile = "help.html";
    ClickAt(open.Find("bHelp"));
    QVERIFY(ShownHelp(open));
    QCOMPARE(ShownHelp(open)->source().fragment(), "ctx501");
}

void HelpWindowTest::dialogBorrowsTheOpenHelp() {
    HelpOverDialogs open;
    open.Press(Qt::Key_F1);
    HelpWindow* help = open.Help();
    help->move(37, 41);
    QTest::keyClick(help, Qt::Key_Plus, Qt::ControlModifier); // 110 %
    const QFont larger = help->findChild<QTextBrowser*>()->font();
    {
        OptionsScreen record;
        frmOptions dialog(record, open.State, open.Outside, open.Window.get());
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_F1);
        QCOMPARE(open.Help(), help);
        QCOMPARE(help->parentWidget(), &dialog);
        QVERIFY(help->isVisible());
        QCOMPARE(help->pos(), QPoint(37, 41));
        QCOMPARE(help->findChild<QTextBrowser*>()->source().fragment(), "ctxOptions");
    }
    QCOMPARE(open.Help(), help);
    QCOMPARE(help->parentWidget(), open.Window.get());
    QVERIFY(help->isVisible());
    QCOMPARE(help->pos(), QPoint(37, 41));
    QCOMPARE(help->findChild<QTextBrowser*>()->font(), larger);
    QTest::keyClick(help, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(help->findChild<QTextBrowser*>()->source().fragment(), "ctx501");
}

void HelpWindowTest::helpOpenedInADialogStaysOpen() {
    HelpOverDialogs open;
    {
        OptionsScreen record;
        frmOptions dialog(record, open.State, open.Outside, open.Window.get());
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_F1);
        QCOMPARE(open.Help()->parentWidget(), &dialog);
    }
    QCOMPARE(open.Help()->parentWidget(), open.Window.get());
    QVERIFY(open.Help()->isVisible());
    open.Help()->close();
    {
        OptionsScreen record;
        frmOptions dialog(record, open.State, open.Outside, open.Window.get());
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_F1);
        open.Help()->close();
    }
    QVERIFY(!open.Help()->isVisible()); // a closed help stays closed
}

void HelpWindowTest::missingFileIsNamedWithItsFolder() {
    QTemporaryDir folder;
    OpenWindow open;
    open.State.Folder = folder.path().toStdString();
    open.State.HelpFile = "LEDGROVE.HLP";
    open.Press(Qt::Key_F1);
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    const Message& message = open.Outside.Messages.front();
    QCOMPARE(message.Title, std::string("Ledgrove"));
    QCOMPARE(message.Icon, MessageIcon::Exclamation);
    QVERIFY(message.Text.find("LEDGROVE.HLP") != std::string::npos);
    QVERIFY(message.Text.find(folder.path().toStdString()) != std::string::npos);
    QVERIFY(!ShownHelp(open));
}

void HelpWindowTest::missingFileNameSaysWhereToSetIt() {
    const auto complaint = HelpComplaint("/some/folder", " ");
    QVERIFY(complaint);
    QVERIFY(complaint->find("HELPFILE=") != std::string::npos);
    QVERIFY(complaint->find("/some/folder") != std::string::npos);
}

void HelpWindowTest::directoryInPlaceOfTheFileCannotBeRead() {
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("LEDGROVE.HLP"));
    const auto complaint = HelpComplaint(folder.path().toStdString(), "LEDGROVE.HLP");
    QVERIFY(complaint);
    QVERIFY(complaint->find("cannot be read: it is a folder") != std::string::npos);
}

void HelpWindowTest::unusableFilesAreReported_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("told");
    QTest::addRow("empty") << QByteArray() << "is empty";
    QTest::addRow("blank") << QByteArray(" \n\r\n ") << "is empty";
    QTest::addRow("zero bytes") << QByteArray(4096, '\0') << "holds no text";
    QTest::addRow("picture") << QByteArray("BM\x36\x04\0\0\0\0", 8) << "holds no text";
    QTest::addRow("control bytes in text") << QByteArray("<html>\x01\x02</html>") << "holds no text";
    QTest::addRow("too large") << QByteArray(17 * 1024 * 1024, 'a') << "is too large";
    QTest::addRow("text") << QByteArray("Only words.\r\n\tAnd a tab.") << "";
    QTest::addRow("not UTF-8") << QByteArray("<p>caf\xE9</p>") << "";
}

void HelpWindowTest::unusableFilesAreReported() {
    QFETCH(QByteArray, content);
    QFETCH(QString, told);
    const auto complaint = ComplaintAbout(content);
    QCOMPARE(complaint.has_value(), !told.isEmpty());
    if (!complaint)
        return;
    const QString text = QString::fromStdString(*complaint);
    QVERIFY2(text.contains(told), qPrintable(text));
    QVERIFY(text.startsWith("The help file \"LEDGROVE.HLP\" in /"));
    QVERIFY(text.endsWith("after HELPFILE= in Ledgrove.ini."));
}

void HelpWindowTest::unreadableFileIsReported() {
    const QTemporaryDir folder;
    WriteHelpFile(folder, "<p>Words</p>");
    QVERIFY(QFile::setPermissions(folder.filePath("LEDGROVE.HLP"), QFileDevice::Permissions()));
    if (QFile probe(folder.filePath("LEDGROVE.HLP")); probe.open(QIODevice::ReadOnly))
        QSKIP("this user can read every file");
    const auto complaint = HelpComplaint(folder.path().toStdString(), "LEDGROVE.HLP");
    QVERIFY(complaint);
    QVERIFY(complaint->find("cannot be read: ") != std::string::npos);
}

QTEST_MAIN(HelpWindowTest)
#include "HelpWindowTest.moc"
