#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
#include <QTextBrowser>

#include "DialogTest.h"
#include "ui/windows/HelpWindow.h"

using namespace Ledgrove;

namespace {

/// Sets a monthly difference, so that the tab shows the features.
void WithDifference(SettingsDesk& desk) {
    desk.State.Scenario.PVNetCashFlow = 100;
}

} // namespace

class OptionsDialogTest : public QObject {
    Q_OBJECT

private slots:
    void showsTheFeatures();
    void enterCommitsAndMovesOn();
    void leavingAFieldChecksNothing();
    void okShowsAndSavesTheFeatures();
    void eachSaveAppendsTwoLines();
    void cancelDoesNotChangeTheFile();
    void refusedCharacterKeepsTheDialogOpen();
    void helpButtonOpensTheDialogsTopic();
    void missingHelpIsReported();
};

void OptionsDialogTest::showsTheFeatures() {
    OpenOptions open;
    QCOMPARE(open.Window->windowTitle(), "Options");
    QVERIFY(open.Window->isModal());
    QCOMPARE(open.Window->findChild<QGroupBox*>()->title(), " Additional Features ");
    QCOMPARE(open.FieldText("ecFeat1"), "Finished basement");
    QCOMPARE(open.FieldText("ecFeat2"), "Larger deck");
    QCOMPARE(open.Focused(), "ecFeat1");
    QVERIFY(open.Find<QLineEdit>("ecFeat1").hasSelectedText());
}

void OptionsDialogTest::enterCommitsAndMovesOn() {
    OpenOptions open;
    open.State.Screen.ecIncome.Text = "$72,000";
    open.Type("ecFeat1", "Sun room 5%");
    open.Press(Qt::Key_Return);
    QVERIFY(open.IsOpen());
    QCOMPARE(open.FieldText("ecFeat1"), "Sun room 5%");
    QCOMPARE(open.Focused(), "ecFeat2");
    QCOMPARE(open.State.Screen.lblStdInc.Text, "$1,680"); // 72,000 x 0.28 / 12
}

void OptionsDialogTest::leavingAFieldChecksNothing() {
    OpenOptions open;
    open.Type("ecFeat1", "");
    ClickAt(open.Find("ecFeat2"));
    QCOMPARE(open.FieldText("ecFeat1"), "");
    ClickAt(open.Find("ecFeat1"));
    open.Press(Qt::Key_Tab);
    QCOMPARE(open.Focused(), "ecFeat2");
    QCOMPARE(open.FieldText("ecFeat1"), "");
    open.Type("ecFeat2", "-5");
    ClickAt(open.Find("ecFeat1"));
    QVERIFY(open.Outside.Messages.empty());
    QCOMPARE(open.FieldText("ecFeat2"), "-5");
}

void OptionsDialogTest::okShowsAndSavesTheFeatures() {
    OpenOptions open(WithDifference);
    open.Type("ecFeat1", "Sun room");
    open.Type("ecFeat2", "");
    ClickAt(open.Find("bOK"));
    QVERIFY(!open.IsOpen());
    QCOMPARE(open.State.Screen.lblfeature1.Text, "Sun room");
    QCOMPARE(open.Lines("FEATURE1"), QByteArrayList{"FEATURE1=Sun room"});
    QCOMPARE(open.Lines("FEATURE2"), QByteArrayList{"FEATURE2="});
}

void OptionsDialogTest::eachSaveAppendsTwoLines() {
    OpenOptions open;
    const QByteArray before = open.Settings();
    // The shipped file has no logo; the save also writes the placeholder text.
    const QByteArray appended = "BUILDERNAME=\r\nLOGOFILE=Full Path To Logo File\r\n";
    ClickAt(open.Find("bOK"));
    QCOMPARE(open.Settings(), before + appended);
    open.Window->show();
    QVERIFY(QTest::qWaitForWindowActive(open.Window.get()));
    ClickAt(open.Find("bOK"));
    QCOMPARE(open.Settings(), before + appended + appended);
}

void OptionsDialogTest::cancelDoesNotChangeTheFile() {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_unknown}) {
        OpenOptions open(WithDifference);
        const QByteArray before = open.Settings();
        open.Type("ecFeat1", "Sun room");
        if (key == Qt::Key_Escape)
            open.Press(key);
        else
            ClickAt(open.Find("bCancel"));
        QVERIFY(!open.IsOpen());
        QCOMPARE(open.Settings(), before);
        QCOMPARE(open.State.Features.Feature1, "Finished basement");
    }
}

void OptionsDialogTest::refusedCharacterKeepsTheDialogOpen() {
    OpenOptions open(WithDifference);
    const QByteArray before = open.Settings();
    auto& field = open.Find<QLineEdit>("ecFeat1");
    field.setText(u"Sun room \u2600"_qs);
    ClickAt(open.Find("bOK"));
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QCOMPARE(open.Outside.Messages.front().Title, std::string("Ledgrove"));
    QCOMPARE(open.Outside.Messages.front().Icon, MessageIcon::Exclamation);
    QVERIFY(open.Outside.Messages.front().Text.find("Sun room") != std::string::npos);
    QVERIFY(open.IsOpen());
    QCOMPARE(field.text(), u"Sun room \u2600"_qs);
    QCOMPARE(open.Settings(), before);
}

void OptionsDialogTest::helpButtonOpensTheDialogsTopic() {
    OpenOptions open;
    QFile file(open.Folder.filePath("LEDGROVE.HLP"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<html><body><a name=\"ctxOptions\">Options topic</a></body></html>");
    file.close();
    ClickAt(open.Find("bHelp"));
    QTRY_VERIFY(open.Window->findChild<HelpWindow*>());
    auto* help = open.Window->findChild<HelpWindow*>();
    QVERIFY(help->isVisible());
    QCOMPARE(help->findChild<QTextBrowser*>()->source().fragment(), "ctxOptions");
    QVERIFY(open.Outside.Messages.empty());
}

void OptionsDialogTest::missingHelpIsReported() {
    OpenOptions open;
    open.Press(Qt::Key_F1);
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QVERIFY(open.Outside.Messages.front().Text.find("LEDGROVE.HLP") != std::string::npos);
}

QTEST_MAIN(OptionsDialogTest)
#include "OptionsDialogTest.moc"
