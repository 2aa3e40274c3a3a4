#include "ui/windows/HelpWindow.h"

#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBrowser>

#include "WindowTest.h"
#include "ui/MainScreenRules.h"

using namespace Ledgrove;

namespace {

void WriteHelp(const QTemporaryDir& folder, const QString& name) {
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "<html><body><a name=\"ctx501\">Welcome topic</a><p><a name=\"ctx504\">Cash topic</a></body></html>");
}

QTextBrowser* ShownHelp(const OpenWindow& open) {
    auto* help = open.Window->findChild<HelpWindow*>();
    return help && help->isVisible() ? help->findChild<QTextBrowser*>() : nullptr;
}

} // namespace

class HelpWindowTest : public QObject {
    Q_OBJECT

private slots:
    void f1OpensTheTopicOfTheCurrentTab_data();
    void f1OpensTheTopicOfTheCurrentTab();
    void helpButtonOpensTheTopicToo();
    void missingFileIsNamedWithItsPlace();
    void noFileNamedSaysWhereToNameIt();
    void directoryInPlaceOfTheFileCannotBeRead();
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

void HelpWindowTest::missingFileIsNamedWithItsPlace() {
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

void HelpWindowTest::noFileNamedSaysWhereToNameIt() {
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
    QVERIFY(complaint->find("cannot be read") != std::string::npos);
}

QTEST_MAIN(HelpWindowTest)
#include "HelpWindowTest.moc"
