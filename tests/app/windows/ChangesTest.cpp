#include <QPushButton>

#include "ChangesDesk.h"
#include "ui/windows/insight/AnswerPicture.h"

using namespace Ledgrove;

class ChangesTest : public QObject {
    Q_OBJECT

private slots:
    void theLastVersionIsComparedWithTheScreen();
    void withoutAVersionAFileIsAskedFor();
    void withoutAFileNothingIsCompared();
    void theListsHoldScreenVersionsAndFiles();
    void filesOfTheSameNameShowTheirFolder();
    void versionsOfTheSameNameAreToldApart();
    void aFaultyFileChangesNothing();
    void unreadableVersionsAreSaid();
    void whatAComparisonLacksIsSaid();
    void equalComparisonsHaveNoTables();
    void theSentenceHasTheNetsOfTheTabs();
    void theChosenFigureShowsItsParts();
    void whoQualifiesHasNoPicture();
    void itFollowsTheMainWindow();
    void newVersionsAppear();
    void anotherComparisonHasOtherVersions();
    void swapExchangesTheSides();
    void aMissingLibraryIsReported();
};

void ChangesTest::theLastVersionIsComparedWithTheScreen() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Keep("Last");
    desk.Open.Enter("ecGMHHome", "204000");
    desk.Show();
    QVERIFY(desk.From().startsWith("Last (20"));
    QCOMPARE(desk.To(), "The screen");
    QCOMPARE(desk.Find<QComboBox>("cboFrom").toolTip(), desk.From());
    QCOMPARE(desk.Open.Asked.Title, "");
    QCOMPARE(desk.Table("InputTable").rowCount(), 1);
    QCOMPARE(desk.Cell("InputTable", 0, 0), "Sticker Price, GREENMARK Home");
    QCOMPARE(desk.Cell("InputTable", 0, 1), "$206,000");
    QCOMPARE(desk.Cell("InputTable", 0, 2), "$204,000");
    // Another opening keeps what is chosen.
    desk.Choose("cboFrom", 1);
    desk.Window->close();
    desk.Show();
    QVERIFY(desk.From().startsWith("First (20"));
}

void ChangesTest::withoutAVersionAFileIsAskedFor() {
    ChangesDesk desk;
    PutBytes(desk.Open.PathOf("b.ledgrove.json"), QByteArray(ChangesSample).replace("206000", "210000"));
    desk.Open.NameToGive = desk.Open.PathOf("b.ledgrove.json");
    desk.Show();
    QCOMPARE(desk.Open.Asked.Title, "Compare With");
    QCOMPARE(desk.From(), "b.ledgrove.json");
    QCOMPARE(desk.To(), "The screen");
    QCOMPARE(desk.Cell("InputTable", 0, 1), "$210,000");
    QVERIFY(desk.Sentence().startsWith("From \"b.ledgrove.json\" to the screen the monthly net goes from "));
}

void ChangesTest::withoutAFileNothingIsCompared() {
    ChangesDesk desk;
    desk.Show();
    QCOMPARE(desk.Sentence(), "Nothing differs, because From and To are the same comparison: choose another "
                              "one for either of them.");
    QVERIFY(!desk.Find<SheetView>("InputTable").isVisible());
    QVERIFY(!desk.Find<QPushButton>("bPrint").isEnabled());
    // A version that is kept later is the usual choice of the next opening.
    desk.Keep("First");
    QCOMPARE(desk.From(), "The screen");
    desk.Show();
    QVERIFY(desk.From().startsWith("First (20"));
    QCOMPARE(desk.Sentence(), "Nothing differs between \"First\" and the screen.");
}

void ChangesTest::theListsHoldScreenVersionsAndFiles() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Show();
    PutBytes(
        desk.Open.PathOf("b.json"),
        QByteArray(R"({"fields": )") + ChangesSample +
            R"(, "labels": {"versions": [{"name": "Then", "kept": "2026-01-02 03:04", "fields": {"ecStdHome": 1}}]}})");
    desk.Open.NameToGive = desk.Open.PathOf("b.json");
    desk.Find<QPushButton>("bToFile").click();
    const QString kept = QString::fromStdString(desk.Open.File->Versions().front().Kept);
    for (const char* list : {"cboFrom", "cboTo"})
        QCOMPARE(desk.Items(list),
                 (QStringList{"The screen", "First (" + kept + ")", "b.json", "b.json: Then"}));
    QVERIFY(desk.From().startsWith("First"));
    QCOMPARE(desk.To(), "b.json");
    QVERIFY(desk.Find<QComboBox>("cboTo").toolTip().endsWith("/b.json"));
    // The same file again is read anew.
    PutBytes(desk.Open.PathOf("b.json"), QByteArray(ChangesSample).replace("206000", "210000"));
    desk.Find<QPushButton>("bFromFile").click();
    QCOMPARE(desk.Items("cboTo"), (QStringList{"The screen", "First (" + kept + ")", "b.json"}));
    QCOMPARE(desk.From(), "b.json");
    desk.Choose("cboTo", 0);
    QCOMPARE(desk.Cell("InputTable", 0, 1), "$210,000");
    QCOMPARE(desk.Cell("InputTable", 0, 2), "$206,000");
}

void ChangesTest::filesOfTheSameNameShowTheirFolder() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Show();
    for (const char* folder : {"one", "two"}) {
        QVERIFY(QDir(desk.Open.FolderPath()).mkdir(folder));
        desk.Open.NameToGive = desk.Open.PathOf(QString(folder) + "/b.json");
        PutBytes(desk.Open.NameToGive, ChangesSample);
        desk.Find<QPushButton>("bFromFile").click();
    }
    QCOMPARE(desk.Items("cboFrom").mid(2),
             (QStringList{desk.Open.PathOf("one/b.json"), desk.Open.PathOf("two/b.json")}));
}

/// Another program may have written them.
void ChangesTest::versionsOfTheSameNameAreToldApart() {
    ChangesDesk desk;
    const QByteArray cheap = QByteArray(ChangesSample).replace("206000", "201000");
    PutBytes(desk.Open.PathOf("b.json"),
             QByteArray(R"({"fields": )") + ChangesSample + R"(, "labels": {"versions": [
                 {"name": "A", "kept": "2026-01-01 10:00", "fields": )" +
                 ChangesSample + R"(}, {"name": "A", "kept": "2026-01-02 10:00", "fields": )" + cheap +
                 "}]}}");
    desk.Open.File->OpenNamed(desk.Open.PathOf("b.json"));
    desk.Show();
    QCOMPARE(desk.From(), "A (2026-01-02 10:00)");
    QCOMPARE(desk.Cell("InputTable", 0, 1), "$201,000");
    desk.Choose("cboFrom", 1);
    QCOMPARE(desk.From(), "A (2026-01-01 10:00)");
    QCOMPARE(desk.Sentence(), "Nothing differs between \"A\" and the screen.");
}

void ChangesTest::aFaultyFileChangesNothing() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Show();
    const QStringList items = desk.Items("cboFrom");
    const QString sentence = desk.Sentence();
    const QString title = desk.Open.Title();
    const QString file = desk.Open.PathOf("b.json");
    PutBytes(file, "no comparison");
    for (const QString& name : {file, desk.Open.PathOf("missing.json"), QString("b\uFFFD.json")}) {
        desk.Open.File->OpenNamed(name);
        const auto told = desk.Open.Outside.TakeTexts();
        QCOMPARE(told.size(), std::size_t{1});
        desk.Open.NameToGive = name;
        desk.Find<QPushButton>("bFromFile").click();
        QCOMPARE(desk.Open.Outside.TakeTexts(), told);
    }
    QCOMPARE(desk.Items("cboFrom"), items);
    QVERIFY(desk.From().startsWith("First"));
    QCOMPARE(desk.Sentence(), sentence);
    QCOMPARE(desk.Open.Title(), title);
}

void ChangesTest::unreadableVersionsAreSaid() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Show();
    desk.Open.NameToGive = desk.Open.PathOf("b.json");
    PutBytes(desk.Open.NameToGive, QByteArray(R"({"fields": )") + ChangesSample +
                                       R"(, "labels": {"versions": [{"fields": {}}, {"name": "x"}]}})");
    desk.Find<QPushButton>("bFromFile").click();
    QCOMPARE(desk.Open.Outside.TakeTexts(),
             std::vector<std::string>{"2 versions in \"" + desk.Open.NameToGive.toStdString() +
                                      "\" cannot be read and are not in the lists."});
    QCOMPARE(desk.From(), "b.json");
}

void ChangesTest::whatAComparisonLacksIsSaid() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Show();
    desk.Open.NameToGive = desk.Open.PathOf("b.json");
    PutBytes(desk.Open.NameToGive, R"({"ecIncome": 72000, "ecStdHome": 200000})");
    desk.Find<QPushButton>("bToFile").click();
    QCOMPARE(desk.Sentence(),
             "\"b.json\" lacks the price of the GREENMARK home, so it has no figures to compare.");
    for (const char* table : {"InputTable", "FigureTable", "PartTable"}) {
        QVERIFY(!desk.Find<SheetView>(table).isVisible());
        QCOMPARE(desk.Table(table).rowCount(), 0);
    }
    for (const char* button : {"bPrint", "bCopy", "bSavePicture"})
        QVERIFY2(!desk.Find<QPushButton>(button).isEnabled(), button);
}

void ChangesTest::equalComparisonsHaveNoTables() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Show();
    QCOMPARE(desk.Sentence(), "Nothing differs between \"First\" and the screen.");
    QVERIFY(!desk.Find<SheetView>("FigureTable").isVisible());
}

void ChangesTest::theSentenceHasTheNetsOfTheTabs() {
    ChangesDesk desk;
    const QString before = desk.Net();
    desk.Keep("First");
    desk.Open.Enter("ecGMHHome", "203000");
    desk.Open.Enter("ecGMHUtil", "1680");
    desk.Show();
    QVERIFY(before != desk.Net());
    // $3,000 of price outweigh $20 of bills a year.
    QCOMPARE(desk.Sentence(), "From \"First\" to the screen the monthly net goes from " + before + " to " +
                                  desk.Net() + "; most of it comes from the price, GREENMARK home.");
}

void ChangesTest::theChosenFigureShowsItsParts() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Open.Enter("ecGMHUtil", "1580");
    desk.Show();
    const int net = desk.RowOf("FigureTable", "Net Monthly Cash Flow with Tax Savings");
    QCOMPARE(desk.Find<SheetView>("FigureTable").currentIndex().row(), net);
    auto& picture = desk.Find<AnswerPicture>("AnswerPicture");
    QCOMPARE(picture.Shown().Title, "What Changes the Net Monthly Cash Flow with Tax Savings");
    const int bills = desk.RowOf("FigureTable", "Monthly Utility Bills, GREENMARK Home");
    desk.Find<SheetView>("FigureTable").setCurrentIndex(desk.Table("FigureTable").index(bills, 0));
    QCOMPARE(picture.Shown().Title, "What Changes the Monthly Utility Bills, GREENMARK Home");
    QVERIFY(picture.isVisible());
    // $1,700 / 12 = $141.67 and $1,580 / 12 = $131.67
    QCOMPARE(desk.Cell("PartTable", 0, 4), "$141.67");
    QCOMPARE(desk.Cell("PartTable", 1, 0), "Annual Utility Cost, GREENMARK Home");
    QCOMPARE(desk.Cell("PartTable", 1, 3), "-$10.00");
    QCOMPARE(desk.Cell("PartTable", 2, 4), "$131.67");
    QCOMPARE(desk.Find<SheetView>("PartTable").accessibleName(),
             "Parts of the change: Monthly Utility Bills, GREENMARK Home");
    // It stays chosen while the amounts follow: $1,640 / 12 = $136.67.
    desk.Open.Enter("ecGMHUtil", "1640");
    QCOMPARE(desk.Cell("PartTable", 1, 3), "-$5.00");
    desk.Find<QPushButton>("bPrint").click();
    QCOMPARE(desk.Printed.Caption, "Monthly Utility Bills, GREENMARK Home");
    QCOMPARE(desk.Printed.Sentence, desk.Sentence().toStdString());
}

void ChangesTest::whoQualifiesHasNoPicture() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Open.Enter("ecIncome", "30000");
    desk.Show();
    const int row = desk.RowOf("FigureTable", "Buyer Qualifies?, Base Home");
    desk.Find<SheetView>("FigureTable").setCurrentIndex(desk.Table("FigureTable").index(row, 0));
    QVERIFY(!desk.Find<AnswerPicture>("AnswerPicture").isVisible());
    QVERIFY(!desk.Find<QPushButton>("bSavePicture").isEnabled());
    QCOMPARE(desk.Cell("PartTable", 1, 3), "-100%");
}

void ChangesTest::itFollowsTheMainWindow() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Show();
    desk.Open.Enter("ecGMHHome", "204000");
    QCOMPARE(desk.Cell("InputTable", 0, 2), "$204,000");
    desk.Open.Enter("ecGMHHome", "205000");
    QCOMPARE(desk.Cell("InputTable", 0, 2), "$205,000");
    QVERIFY(desk.Sentence().contains("to " + desk.Net() + ";"));
    desk.Open.Window->Undo();
    QCOMPARE(desk.Cell("InputTable", 0, 2), "$204,000");
}

void ChangesTest::newVersionsAppear() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Show();
    desk.Open.Enter("ecGMHHome", "204000");
    desk.Keep("Second");
    QCOMPARE(desk.Items("cboTo").size(), 3);
    QVERIFY(desk.Items("cboTo").last().startsWith("Second ("));
    QVERIFY(desk.From().startsWith("First"));
    QCOMPARE(desk.Cell("InputTable", 0, 2), "$204,000");
}

void ChangesTest::anotherComparisonHasOtherVersions() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Open.NameToGive = desk.Open.PathOf("a.ledgrove.json");
    QVERIFY(desk.Open.File->Save());
    desk.Show();
    PutBytes(desk.Open.PathOf("b.json"),
             QByteArray(R"({"fields": )") + QByteArray(ChangesSample).replace("206000", "210000") +
                 R"(, "labels": {"versions": [{"name": "Other", "fields": )" + ChangesSample + "}]}}");
    desk.Open.File->OpenNamed(desk.Open.PathOf("b.json"));
    QCOMPARE(desk.Items("cboFrom"), (QStringList{"The screen", "Other"}));
    QCOMPARE(desk.From(), "Other");
    QCOMPARE(desk.Cell("InputTable", 0, 1), "$206,000");
    QCOMPARE(desk.Cell("InputTable", 0, 2), "$210,000");
}

void ChangesTest::swapExchangesTheSides() {
    ChangesDesk desk;
    desk.Keep("First");
    desk.Open.Enter("ecGMHHome", "204000");
    desk.Show();
    desk.Find<QPushButton>("bSwap").click();
    QCOMPARE(desk.From(), "The screen");
    QVERIFY(desk.To().startsWith("First"));
    QCOMPARE(desk.Cell("InputTable", 0, 1), "$204,000");
    QCOMPARE(desk.Cell("InputTable", 0, 2), "$206,000");
}

void ChangesTest::aMissingLibraryIsReported() {
    OpenDesktop open;
    ChangesOpener opener(open.State, open.Outside, open.Questions, {}, open.FolderPath());
    opener.Follow(*open.Window, *open.File);
    opener.Open();
    const auto texts = open.Outside.TakeTexts();
    QCOMPARE(texts.size(), std::size_t{1});
    QVERIFY(texts.front().starts_with("The window \"What changed?\" cannot be opened: "));
    QCOMPARE(open.Asked.Title, "");
}

QTEST_MAIN(ChangesTest)
#include "ChangesTest.moc"
