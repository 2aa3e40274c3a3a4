#include "ui/windows/Dialogs.h"

#include <QDialog>
#include <QFile>
#include <QTimer>

#include "DialogTest.h"

using namespace Ledgrove;

namespace {

/// The main window as the program opens it.
struct OpenProgram : SettingsDesk, FormDriver {
    OpenProgram() {
        Window = std::make_unique<frmMain>(State, Outside, DialogActions(State, Outside));
        Form = Window.get();
        Window->show();
        if (!QTest::qWaitForWindowActive(Window.get()))
            qFatal("the window does not become active");
    }

    /// Presses the button and runs `act` on the dialog that it opens; returns the dialog's name, or "" for
    /// none.
    QString PressButton(const char* button, const std::function<void(QDialog&)>& act) {
        QString opened;
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            opened = dialog->objectName();
            act(*dialog);
        });
        ClickAt(Find(button));
        QCoreApplication::processEvents();
        return opened;
    }

    std::unique_ptr<frmMain> Window;
};

void Cancel(QDialog& dialog) {
    dialog.reject();
}

} // namespace

class DialogsTest : public QObject {
    Q_OBJECT

private slots:
    void buttonsOpenTheirDialogs_data();
    void buttonsOpenTheirDialogs();
    void chosenHouseIsCompared();
    void unreadableHouseListOpensNoDialog();
    void missingSettingsOpenNoDialog();
};

void DialogsTest::buttonsOpenTheirDialogs_data() {
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("dialog");
    QTest::addRow("House Scenarios") << QByteArray("bHouses") << "frmHomeSelection";
    QTest::addRow("Financial Assumptions") << QByteArray("Command1") << "frmAssumptions";
    QTest::addRow("Options") << QByteArray("bSysOpt") << "frmOptions";
}

void DialogsTest::buttonsOpenTheirDialogs() {
    QFETCH(QByteArray, button);
    QFETCH(QString, dialog);
    OpenProgram open;
    QCOMPARE(open.PressButton(button, Cancel), dialog);
    QVERIFY(!QApplication::activeModalWidget());
}

void DialogsTest::chosenHouseIsCompared() {
    OpenProgram open;
    open.PressButton("bHouses", [](QDialog& dialog) { dialog.accept(); });
    QCOMPARE(open.LabelText("lblHomeName"), "The Alder");
    QCOMPARE(open.FieldText("ecStdHome"), "$285,000");
    QCOMPARE(open.LabelText("lblStdHome"), "$285,000"); // the recalculation's label of the price
    open.Type("ecStdHome", "290000");
    open.Press(Qt::Key_Return);
    QCOMPARE(open.LabelText("lblHomeName"), "Custom");
}

void DialogsTest::unreadableHouseListOpensNoDialog() {
    OpenProgram open;
    const QByteArray broken = open.Settings() + "HOMELIST=Lot 7,many,1,2,3\r\n";
    open.WriteSettings(broken);
    QCOMPARE(open.PressButton("bHouses", Cancel), "");
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QCOMPARE(open.Outside.Messages.front().Title, std::string("Ledgrove"));
    QCOMPARE(open.Outside.Messages.front().Icon, MessageIcon::Exclamation);
    QVERIFY(open.Outside.Messages.front().Text.find("many") != std::string::npos);
    QCOMPARE(open.Settings(), broken);
}

void DialogsTest::missingSettingsOpenNoDialog() {
    for (const char* button : {"bHouses", "bSysOpt"}) {
        OpenProgram open;
        QVERIFY(QFile::remove(open.Folder.filePath("Ledgrove.ini")));
        QCOMPARE(open.PressButton(button, Cancel), "");
        QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
        QVERIFY(open.Outside.Messages.front().Text.find("Ledgrove.ini") != std::string::npos);
    }
}

QTEST_MAIN(DialogsTest)
#include "DialogsTest.moc"
