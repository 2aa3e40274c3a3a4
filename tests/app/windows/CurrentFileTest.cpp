#include <QDir>
#include <QLineEdit>
#include <QSignalSpy>

#include "DesktopDesk.h"
#include "app/files/ComparisonFile.h"

using namespace Ledgrove;

class CurrentFileTest : public QObject {
    Q_OBJECT

private slots:
    void titleShowsNameAndChanges();
    void savedOpensAgain();
    void saveAsksForANameOnce();
    void saveIncludesTheEntryBeingTyped();
    void saveIsRefusedWithTheField();
    void failedSaveLeavesTheFileAndTheMark();
    void suggestedNames();
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
}

void CurrentFileTest::faultyFileChangesNothing() {
    OpenDesktop open;
    open.Enter("ecIncome", "72000");
    open.Answer = SaveAnswer::Discard;
    PutBytes(open.PathOf("bad.ledgrove.json"), R"({"ecIncome": "many"})");
    open.File->OpenNamed(open.PathOf("bad.ledgrove.json"));
    const auto texts = open.Outside.TakeTexts();
    QCOMPARE(texts.size(), std::size_t(1));
    QVERIFY(texts.front().find("ecIncome \"many\": You must enter a number here.") != std::string::npos);
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
