#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QTabBar>

#include "WindowTest.h"
#include "ui/InputWords.h"
#include "ui/MainScreenRules.h"
#include "ui/windows/ResultPanels.h"

using namespace Ledgrove;

namespace {

/// All texts of the window in which "&" marks a mnemonic.
QStringList MnemonicTextsAndTabs(const OpenWindow& open) {
    QStringList texts = MnemonicTexts(*open.Window);
    const QTabBar* bar = open.Find<ResultPanels>("SSTab1").tabBar();
    for (int i = 0; i < bar->count(); ++i)
        texts += bar->tabText(i);
    return texts;
}

} // namespace

class MainWindowAccessTest : public QObject {
    Q_OBJECT

private slots:
    void mnemonicsAreUnique();
    void mnemonicsReachTheirControls();
    void everyCaptionIsItsFieldsBuddy();
    void namesAreWords();
    void emblemIsSilent();
    void fieldsAreNamedCaptionAndColumn();
    void pickListsHaveADescriptionAndTheirChoice();
    void resultsHaveADescriptionAndTheirText();
    void eachMortgagePaymentSaysWhatItIncludes();
    void descriptionFollowsTheCaption();
    void tabOrderFollowsTheLayout();
};

void MainWindowAccessTest::mnemonicsAreUnique() {
    OpenWindow open;
    // Eight captions of fields, two options, the check box, five tabs and a button; the menus use other
    // letters.
    QCOMPARE(Mnemonics(MnemonicTextsAndTabs(open)), "ABCDGILMNOPRSUWXY");
}

void MainWindowAccessTest::mnemonicsReachTheirControls() {
    OpenWindow open;
    open.Press(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(open.Focused(), "ecStdHome");
    open.Press(Qt::Key_O, Qt::AltModifier);
    QCOMPARE(open.Focused(), "cboStdMortOption");
    open.Press(Qt::Key_C, Qt::AltModifier);
    QCOMPARE(open.State.Screen.SSTab1, 1);
}

void MainWindowAccessTest::everyCaptionIsItsFieldsBuddy() {
    OpenWindow open;
    const std::pair<const char*, const char*> captions[] = {
        {"Annual Income", "ecIncome"},   {"Monthly Debt", "ecMonthlyDebt"},
        {"Sticker Price:", "ecStdHome"}, {"Annual Utility Cost:", "ecStdUtil"},
        {"Interest Rate:", "ecStdRate"}, {"Mortgage Stretch:", "ecStdStr"},
        {"Term:", "cboMortTerm"},        {"Mortgage Option:", "cboStdMortOption"}};
    QMap<QString, QString> buddies;
    for (const QLabel* label : open.Window->findChildren<QLabel*>()) {
        if (label->buddy())
            buddies[label->text().remove('&')] = label->buddy()->objectName();
    }
    for (const auto& [caption, field] : captions)
        QCOMPARE(buddies.value(caption), field);
    QCOMPARE(buddies.size(), qsizetype(std::size(captions)));
}

void MainWindowAccessTest::namesAreWords() {
    OpenWindow open;
    for (int tab = 0; tab < TabCount; ++tab) {
        open.Find<ResultPanels>("SSTab1").setCurrentIndex(tab);
        QCOMPARE(SpokenCodeNames(*open.Window), QStringList());
    }
}

void MainWindowAccessTest::emblemIsSilent() {
    OpenWindow open;
    auto& emblem = open.Find<QLabel>("bFinancing");
    QTRY_VERIFY(!emblem.pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(SpokenName(emblem), "");
    QCOMPARE(emblem.accessibleDescription(), "");
    // Screen readers pass over what is invisible to them.
    QVERIFY(QAccessible::queryAccessibleInterface(&emblem)->state().invisible);
    QVERIFY(!QAccessible::queryAccessibleInterface(&open.Find("bHelp"))->state().invisible);
}

void MainWindowAccessTest::fieldsAreNamedCaptionAndColumn() {
    OpenWindow open;
    const std::pair<const char*, const char*> names[] = {{"ecIncome", "Annual Income"},
                                                         {"ecStdHome", "Sticker Price, Base Home"},
                                                         {"ecGMHHome", "Sticker Price, GREENMARK Home"},
                                                         {"ecGMHStr", "Mortgage Stretch, GREENMARK Home"},
                                                         {"ecGMHTerm", "Term, GREENMARK Home"}};
    for (const auto& [field, name] : names)
        QCOMPARE(SpokenName(open.Find(field)), name);
    QSet<QString> all;
    for (const EntryRule& rule : MainEntryRules()) {
        all += SpokenName(open.Find(rule.Name.data()));
        // Messages about a file use the same words.
        const std::string_view words = InputWords(rule.Name);
        QCOMPARE(SpokenName(open.Find(rule.Name.data())),
                 QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size())));
    }
    QCOMPARE(std::size_t(all.size()), MainEntryRules().size());
}

void MainWindowAccessTest::pickListsHaveADescriptionAndTheirChoice() {
    OpenWindow open;
    QCOMPARE(open.Find("cboMortTerm").accessibleDescription(), "Term, Base Home");
    QCOMPARE(open.Find("cboGMHMortOption").accessibleDescription(), "Mortgage Option, GREENMARK Home");
    for (const auto& entry : PickListTable()) {
        auto& list = open.Find<QComboBox>(entry.Name.data());
        QVERIFY(list.accessibleName().isEmpty());
        const std::string_view words = InputWords(entry.Name);
        QCOMPARE(list.accessibleDescription(),
                 QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size())));
        QCOMPARE(SpokenName(list), list.currentText());
    }
}

void MainWindowAccessTest::resultsHaveADescriptionAndTheirText() {
    OpenWindow open;
    QCOMPARE(open.Find("lblStdMaxHome").accessibleDescription(), "Maximum Loan Value, Base Home");
    QCOMPARE(open.Find("lblGMHQual").accessibleDescription(), "Buyer Qualifies?, GREENMARK Home");
    QCOMPARE(open.Find("lblNetCashYr").accessibleDescription(), "Net Monthly Cash Flow, Yearly");
    // "30 Years" continues the caption of the row above it.
    QCOMPARE(open.Find("lbl30YrPre").accessibleDescription(),
             "Expected Savings After: 30 Years, GREENMARK Home");
    open.State.Screen.lblStdMaxHome.Text = "$242,484";
    open.Window->Refresh();
    QCOMPARE(SpokenName(open.Find("lblStdMaxHome")), "$242,484");
    for (const auto& entry : LabelTable())
        QVERIFY2(open.Find(entry.Name.data()).accessibleName().isEmpty(), entry.Name.data());
}

void MainWindowAccessTest::eachMortgagePaymentSaysWhatItIncludes() {
    OpenWindow open;
    const struct {
        const char* Figure;
        const char* Column;
        const char* Meaning;
    } payments[] = {
        {"lblStdMortPayment", "Base Home", "Principal and interest per month"},
        {"lblGMHMortPayment", "GREENMARK Home", "Principal and interest per month"},
        {"lblStdPITI", "Base Home", "Principal, interest, taxes, insurance and PMI per month"},
        {"lblGMHPITI", "GREENMARK Home", "Principal, interest, taxes, insurance and PMI per month"}};
    for (const auto& [figure, column, meaning] : payments) {
        QCOMPARE(open.Find(figure).toolTip(), meaning);
        QCOMPARE(open.Find(figure).accessibleDescription(),
                 QString("Mortgage Payment, %1. %2").arg(column, meaning));
        int captions = 0;
        for (const QLabel* label : open.Find(figure).parentWidget()->findChildren<QLabel*>()) {
            if (label->text() != "Mortgage Payment")
                continue;
            ++captions;
            QCOMPARE(label->toolTip(), meaning);
            QCOMPARE(label->accessibleDescription(), meaning);
        }
        QCOMPARE(captions, 1);
    }
    QCOMPARE(open.Find("lblStdMort").toolTip(), "");
}

void MainWindowAccessTest::descriptionFollowsTheCaption() {
    OpenWindow open;
    QCOMPARE(open.Find("lblAddMortMo").accessibleDescription(), "Mortgage Savings, Monthly");
    open.State.Screen.lbladditionalmortgagetext.Text = "Additional Mortgage";
    open.Window->Refresh();
    QCOMPARE(open.Find("lblAddMortMo").accessibleDescription(), "Additional Mortgage, Monthly");
}

void MainWindowAccessTest::tabOrderFollowsTheLayout() {
    OpenWindow open;
    // Tab skips the disabled buttons and the unselected option.
    const QStringList expected = {"ecIncome",         "ecMonthlyDebt", "ecPctDown",   "optDownPayment0",
                                  "ecFixedDown",      "chkDoTax0",     "ecStdHome",   "ecGMHHome",
                                  "ecStdUtil",        "ecGMHUtil",     "ecStdRate",   "ecGMHRate",
                                  "ecStdStr",         "ecGMHStr",      "cboMortTerm", "cboStdMortOption",
                                  "cboGMHMortOption", "bDisclaimer",   "bHelp"};
    QCOMPARE(open.TabWalk("ecIncome", expected.size()), expected);
    QCOMPARE(QApplication::focusWidget(), open.Find<ResultPanels>("SSTab1").tabBar());
    open.Press(Qt::Key_Tab);
    QCOMPARE(open.Focused(), "bNextStep");
    open.Press(Qt::Key_Tab);
    QCOMPARE(open.Focused(), "ecIncome");
    open.Press(Qt::Key_Backtab, Qt::ShiftModifier);
    open.Press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), open.Find<ResultPanels>("SSTab1").tabBar());
}

QTEST_MAIN(MainWindowAccessTest)
#include "MainWindowAccessTest.moc"
