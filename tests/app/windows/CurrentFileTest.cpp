#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTimer>
#include <fstream>
#include <sys/stat.h>

#include "DesktopDesk.h"
#include "app/files/ComparisonFile.h"

using namespace Ledgrove;

class CurrentFileTest : public QObject {
    Q_OBJECT

private slots:
    void titleShowsNameAndChanges();
    void titleFollowsTyping();
    void savedOpensAgain();
    void saveAsksForANameOnce();
    void saveIncludesTheEntryBeingTyped();
    void saveIsRefusedWithTheField();
    void failedSaveLeavesTheFileAndTheMark();
    void suggestedNames();
    void replaceQuestionIsPlainText();
    void pipesAndDevicesAreReported();
    void namesThatAreNotUtf8AreReported();
    void faultyFileChangesNothing();
    void unsavedInputsCauseAQuestion_data();
    void unsavedInputsCauseAQuestion();
    void emptyInputsCauseNoQuestion();
    void closingAsks();
    void newClearsTheInputs();
    void sampleIsACopy();
    void recentFilesAreNewestFirst();
    void missingRecentFileIsRemovedFromTheList();
    void savingKeepsALink();
};

namespace {

constexpr const char* sample = R"({"ecIncome": "72000", "ecStdHome": "200000"})";

} // namespace

void CurrentFileTest::titleShowsNameAndChanges() {
    OpenDesktop open;
    QCOMPARE(open.Title(), "Ledgrove");
    open.Enter("ecIncome", "72000");
    QCOMPARE(open.Title(), "Ledgrove*");
    open.NameToGive = open.PathOf("doe.ledgrove.json");
    QVERIFY(open.File->Save());
    QCOMPARE(open.Title(), "doe.ledgrove.json - Ledgrove");
    open.Enter("ecIncome", "73000");
    QCOMPARE(open.Title(), "doe.ledgrove.json* - Ledgrove");
    open.Enter("ecIncome", "72000");
    QCOMPARE(open.Title(), "doe.ledgrove.json - Ledgrove");
}

void CurrentFileTest::titleFollowsTyping() {
    OpenDesktop open;
    const QSignalSpy refreshed(open.Window.get(), &frmMain::Refreshed);
    open.Type("ecIncome", "7");
    QCOMPARE(open.Title(), "Ledgrove*");
    open.Press(Qt::Key_Backspace);
    QCOMPARE(open.Title(), "Ledgrove");
    QCOMPARE(refreshed.count(), 0);
    open.Enter("ecIncome", "72000");
    open.NameToGive = open.PathOf("doe.ledgrove.json");
    QVERIFY(open.File->Save());
    open.Find("ecIncome").setFocus();
    const auto shown = refreshed.count();
    open.Press(Qt::Key_End);
    open.Press(Qt::Key_1);
    QCOMPARE(open.Title(), "doe.ledgrove.json* - Ledgrove");
    open.Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(open.FieldText("ecIncome"), "$72,000");
    QCOMPARE(open.Title(), "doe.ledgrove.json - Ledgrove");
    QCOMPARE(refreshed.count(), shown);
}

void CurrentFileTest::savedOpensAgain() {
    OpenDesktop open;
    open.Enter("ecIncome", "72000");
    open.Enter("ecStdHome", "200000");
    open.Enter("ecPctDown", "10");
    open.NameToGive = open.PathOf("a.ledgrove.json");
    QVERIFY(open.File->SaveAs());
    const QString payment = open.LabelText("lblStdPITI");
    open.File->New();
    QCOMPARE(open.FieldText("ecStdHome"), "");
    open.File->Open();
    QCOMPARE(open.FieldText("ecIncome"), "$72,000");
    QCOMPARE(open.FieldText("ecPctDown"), "10.00%");
    QCOMPARE(open.LabelText("lblStdPITI"), payment);
    QCOMPARE(open.Focused(), "ecIncome");
    QVERIFY(!open.Window->isWindowModified());
}

void CurrentFileTest::saveAsksForANameOnce() {
    OpenDesktop open;
    open.Enter("ecIncome", "72000");
    QVERIFY(!open.File->Save());
    QCOMPARE(open.Asked.Title, "Save Comparison");
    QCOMPARE(open.Asked.Suffix, ".ledgrove.json");
    open.NameToGive = open.PathOf("a.ledgrove.json");
    QVERIFY(open.File->Save());
    open.NameToGive = open.PathOf("b.ledgrove.json");
    open.Enter("ecIncome", "75000");
    QVERIFY(open.File->Save());
    QVERIFY(BytesOf(open.PathOf("a.ledgrove.json")).contains("$75,000"));
    QCOMPARE(BytesOf(open.PathOf("b.ledgrove.json")), "(missing)");
}

void CurrentFileTest::saveIncludesTheEntryBeingTyped() {
    OpenDesktop open;
    open.Type("ecIncome", "72000");
    open.NameToGive = open.PathOf("a.ledgrove.json");
    QVERIFY(open.File->Save());
    QVERIFY(BytesOf(open.NameToGive).contains(R"("ecIncome": "$72,000")"));
    QCOMPARE(open.FieldText("ecIncome"), "$72,000");
    QCOMPARE(open.Focused(), "ecIncome");
    QVERIFY(!open.Window->isWindowModified());
}

void CurrentFileTest::saveIsRefusedWithTheField() {
    OpenDesktop open;
    open.Type("ecIncome", "abc");
    open.NameToGive = open.PathOf("a.ledgrove.json");
    QVERIFY(!open.File->Save());
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"You must enter a number here."});
    QCOMPARE(BytesOf(open.NameToGive), "(missing)");
    QCOMPARE(open.Focused(), "ecIncome");
}

void CurrentFileTest::failedSaveLeavesTheFileAndTheMark() {
    OpenDesktop open;
    open.Enter("ecIncome", "72000");
    open.NameToGive = open.PathOf("none/a.ledgrove.json");
    QVERIFY(!open.File->Save());
    const auto texts = open.Outside.TakeTexts();
    QCOMPARE(texts.size(), std::size_t(1));
    QVERIFY(texts.front().find("none/a.ledgrove.json\" cannot be saved") != std::string::npos);
    QVERIFY(open.Window->isWindowModified());
    QCOMPARE(open.File->Name(), "");
}

void CurrentFileTest::suggestedNames() {
    OpenDesktop open;
    QVERIFY(open.File->NameBeside(".pdf").endsWith("/comparison.pdf"));
    for (const char* name : {"doe.ledgrove.json", "doe.json", "doe"}) {
        PutBytes(open.PathOf(name), sample);
        open.File->OpenNamed(open.PathOf(name));
        QCOMPARE(open.File->NameBeside(".pdf"), open.PathOf("doe.pdf"));
    }
    QCOMPARE(WithSuffix("/a/doe", ".pdf"), "/a/doe.pdf");
    QCOMPARE(WithSuffix("/a/doe.PDF", ".pdf"), "/a/doe.PDF");
    QCOMPARE(WithSuffix("/a.b/doe.v2", ".ledgrove.json"), "/a.b/doe.v2.ledgrove.json");
    QCOMPARE(WithSuffix("/a/plain", ".ledgrove.json"), "/a/plain.ledgrove.json");
    QCOMPARE(WithSuffix("/a/plain.json", ".ledgrove.json"), "/a/plain.json");
    QCOMPARE(WithSuffix("/a/doe.Ledgrove.JSON", ".ledgrove.json"), "/a/doe.Ledgrove.JSON");
    QCOMPARE(WithSuffix("/a/doe.json", ".csv"), "/a/doe.json.csv");
}

void CurrentFileTest::replaceQuestionIsPlainText() {
    OpenDesktop open;
    const QString name = open.PathOf("a <b>bold & co.json");
    PutBytes(name, sample);
    QString asked;
    Qt::TextFormat format = Qt::AutoText;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            asked = box->text();
            format = box->textFormat();
            box->button(QMessageBox::Yes)->click();
        });
        qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept();
    });
    QCOMPARE(
        AskAtScreen().SaveName(*open.Window, {"Save Comparison", name, "All files (*)", ".ledgrove.json"}),
        name);
    QCOMPARE(asked, '"' + name + "\" already exists. Replace it?");
    QCOMPARE(format, Qt::PlainText);
}

void CurrentFileTest::pipesAndDevicesAreReported() {
    OpenDesktop open;
    open.Enter("ecIncome", "72000");
    open.Answer = SaveAnswer::Discard;
    const QString pipe = open.PathOf("pipe.json");
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    open.Recent.Add(pipe);
    for (const QString& file : {pipe, QString("/dev/null")}) {
        open.File->OpenNamed(file);
        const std::string cannot = '"' + file.toStdString() + "\" cannot be ";
        QVERIFY(open.Outside.TakeTexts().front().starts_with(cannot + "read: it is not an ordinary file."));
        open.NameToGive = file;
        QVERIFY(!open.File->SaveAs());
        QVERIFY(open.Outside.TakeTexts().front().starts_with(cannot + "saved: it is not an ordinary file."));
        QVERIFY(!QFileInfo(file).isFile());
    }
    open.NameToGive = open.FolderPath();
    QVERIFY(!open.File->SaveAs());
    QVERIFY(open.Outside.TakeTexts().front().find("cannot be saved: it is a folder.") != std::string::npos);
    QVERIFY(open.Recent.Names().isEmpty());
    QCOMPARE(open.FieldText("ecIncome"), "$72,000");
}

void CurrentFileTest::namesThatAreNotUtf8AreReported() {
    OpenDesktop open;
    std::ofstream(open.State.Folder / "caf\xE9.json") << sample;
    const QString shown = open.PathOf(u"caf\uFFFD.json"_qs); // as the file dialog gives it
    open.File->OpenNamed(shown);
    QVERIFY(open.Outside.TakeTexts().front().find("its name contains characters that are not UTF-8") !=
            std::string::npos);
    QCOMPARE(open.FieldText("ecIncome"), "");
    // The mark itself is a character of a name like any other.
    PutBytes(shown, sample);
    open.File->OpenNamed(shown);
    QCOMPARE(open.FieldText("ecIncome"), "$72,000");
}

void CurrentFileTest::faultyFileChangesNothing() {
    OpenDesktop open;
    open.Enter("ecIncome", "72000");
    open.Answer = SaveAnswer::Discard;
    PutBytes(open.PathOf("bad.ledgrove.json"), R"({"ecIncome": "many"})");
    open.File->OpenNamed(open.PathOf("bad.ledgrove.json"));
    const auto texts = open.Outside.TakeTexts();
    QCOMPARE(texts.size(), std::size_t(1));
    QVERIFY(texts.front().find("Annual Income \"many\": You must enter a number here.") != std::string::npos);
    QCOMPARE(open.FieldText("ecIncome"), "$72,000");
    QCOMPARE(open.Title(), "Ledgrove*");
}

void CurrentFileTest::unsavedInputsCauseAQuestion_data() {
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Save") << int(SaveAnswer::Save) << "" << true;
    QTest::newRow("Discard") << int(SaveAnswer::Discard) << "" << false;
    QTest::newRow("Cancel") << int(SaveAnswer::Cancel) << "$72,000" << false;
}

void CurrentFileTest::unsavedInputsCauseAQuestion() {
    QFETCH(const int, answer);
    QFETCH(const QString, shown);
    QFETCH(const bool, saved);
    OpenDesktop open;
    open.Enter("ecIncome", "72000");
    open.Answer = SaveAnswer(answer);
    open.NameToGive = open.PathOf("a.ledgrove.json");
    open.File->New();
    QCOMPARE(open.UnsavedNames, QStringList{"this comparison"});
    QCOMPARE(open.FieldText("ecIncome"), shown);
    QCOMPARE(BytesOf(open.NameToGive).contains("$72,000"), saved);
}

void CurrentFileTest::emptyInputsCauseNoQuestion() {
    OpenDesktop open;
    open.Press(Qt::Key_Return);
    QCOMPARE(open.FieldText("ecIncome"), "$0");
    QCOMPARE(open.Title(), "Ledgrove");
    QVERIFY(open.Window->close());
    QVERIFY(open.UnsavedNames.isEmpty());
}

void CurrentFileTest::closingAsks() {
    OpenDesktop open;
    QSignalSpy closed(open.Window.get(), &frmMain::Closed);
    open.Enter("ecIncome", "72000");
    QVERIFY(!open.Window->close());
    QVERIFY(open.Window->isVisible());
    QCOMPARE(closed.count(), 0);
    open.Answer = SaveAnswer::Discard;
    QVERIFY(open.Window->close());
    QCOMPARE(closed.count(), 1);
}

void CurrentFileTest::newClearsTheInputs() {
    OpenDesktop open;
    PutBytes(open.PathOf("a.ledgrove.json"), sample);
    open.File->OpenNamed(open.PathOf("a.ledgrove.json"));
    open.File->New();
    QCOMPARE(open.Title(), "Ledgrove");
    QCOMPARE(open.FieldText("ecStdRate"), "6.5");
    QCOMPARE(open.FieldText("ecStdHome"), "");
    QVERIFY(open.UnsavedNames.isEmpty());
}

void CurrentFileTest::sampleIsACopy() {
    OpenDesktop open;
    PutBytes(open.PathOf("a.ledgrove.json"), sample);
    open.File->OpenCopy(open.PathOf("a.ledgrove.json"));
    QCOMPARE(open.FieldText("ecIncome"), "$72,000");
    QCOMPARE(open.Title(), "Ledgrove");
    QCOMPARE(open.File->Name(), "");
    QVERIFY(open.Recent.Names().isEmpty());
}

void CurrentFileTest::recentFilesAreNewestFirst() {
    OpenDesktop open;
    for (int i = 0; i < 10; ++i) {
        const QString path = open.PathOf(QString("%1.ledgrove.json").arg(i));
        PutBytes(path, sample);
        open.File->OpenNamed(path);
    }
    open.File->OpenNamed(open.PathOf("5.ledgrove.json"));
    QStringList expected;
    for (const int i : {5, 9, 8, 7, 6, 4, 3, 2})
        expected += open.PathOf(QString("%1.ledgrove.json").arg(i));
    QCOMPARE(open.Recent.Names(), expected);
}

void CurrentFileTest::missingRecentFileIsRemovedFromTheList() {
    OpenDesktop open;
    PutBytes(open.PathOf("a.ledgrove.json"), sample);
    open.File->OpenNamed(open.PathOf("a.ledgrove.json"));
    QVERIFY(QFile::remove(open.PathOf("a.ledgrove.json")));
    open.File->OpenNamed(open.PathOf("a.ledgrove.json"));
    QVERIFY(open.Outside.TakeTexts().front().find("a.ledgrove.json") != std::string::npos);
    QVERIFY(open.Recent.Names().isEmpty());
}

void CurrentFileTest::savingKeepsALink() {
    OpenDesktop open;
    PutBytes(open.PathOf("real.ledgrove.json"), sample);
    QVERIFY(QFile::link(open.PathOf("real.ledgrove.json"), open.PathOf("link.ledgrove.json")));
    open.File->OpenNamed(open.PathOf("link.ledgrove.json"));
    open.Enter("ecIncome", "99000");
    QVERIFY(open.File->Save());
    QVERIFY(QFileInfo(open.PathOf("link.ledgrove.json")).isSymLink());
    QVERIFY(BytesOf(open.PathOf("real.ledgrove.json")).contains("$99,000"));
}

QTEST_MAIN(CurrentFileTest)
#include "CurrentFileTest.moc"
