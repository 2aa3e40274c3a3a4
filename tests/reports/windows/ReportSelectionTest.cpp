#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>

#include "PrintDesk.h"
#include "ReadingOrder.h"
#include "engine/Recalculate.h"
#include "reports/windows/PrintAction.h"
#include "reports/windows/frmReportSelection.h"
#include "tests/engine/TestSession.h"
#include "ui/windows/HelpWindow.h"
#include "ui/windows/frmMain.h"

using namespace Ledgrove;

namespace {

constexpr const char* boxes[] = {"chkReport1", "chkReport3", "chkReport4", "chkReport5", "chkReport6"};

/// The open dialog, which begins with these sections and keeps those of each preview.
struct OpenSelection : PrintDesk, FormDriver {
    explicit OpenSelection(const ReportSections& kept = {})
        : Kept(kept) {
        Bring("LedgroveEmblem.png");
        Machine.Sections = {[this] { return Kept; },
                            [this](const ReportSections& sections) { Kept = sections; }};
        Reopen();
    }

    void Reopen() {
        Window = std::make_unique<frmReportSelection>(State, Outside, Machine);
        Form = Window.get();
        Window->show();
        if (!QTest::qWaitForWindowActive(Window.get()))
            qFatal("the dialog does not become active");
    }

    void Tick(const char* box) const { Find<QCheckBox>(box).click(); }

    /// The text of the report that the preview composes from the ticked boxes.
    QString PreviewedText() const {
        QString text;
        const bool opened = WhileOpen(
            "frmPrint", [this] { ClickAt(Find("bPrint")); },
            [&text](QWidget& preview) {
                const PrintDocument& document = dynamic_cast<frmPrint&>(preview).Document();
                for (std::size_t page = 1; page <= document.PageCount(); ++page) {
                    for (const PrintItem& item : document.Page(page)) {
                        if (const auto* run = std::get_if<TextRun>(&item))
                            text += QString::fromStdString(run->Text) + '\n';
                    }
                }
                preview.close();
            });
        if (!opened)
            qFatal("the preview did not open");
        return text;
    }

    QString Ticked() const { return QString::fromStdString(NamesOf(Window->Sections())); }

    ReportSections Kept;
    std::unique_ptr<frmReportSelection> Window;
};

/// Presses the key while this control has the focus. Returns whether the window opened.
bool Opens(const OpenSelection& open, const char* control, const char* window, Qt::Key key) {
    open.Find(control).setFocus();
    return WhileOpen(
        window, [&open, key] { open.Press(key); }, [](QWidget& opened) { opened.close(); });
}

void FillSample(Session& session, Host& host) {
    Testing::FillSample(session.Screen);
    Module1::Recalculate(session, host);
}

} // namespace

class ReportSelectionTest : public QObject {
    Q_OBJECT

private slots:
    void showsItsSections();
    void lastPreviewsSectionsAreTicked();
    void onlyAPreviewKeepsTheSections();
    void enterPreviewsFromEveryBox();
    void enterPressesTheFocusedButton();
    void tickedSectionsReachTheReport_data();
    void tickedSectionsReachTheReport();
    void withoutASectionTheReportHasItsTwoTables();
    void moreHomeRefreshesTheFeatures();
    void headerChoicesReachTheReport();
    void missingSettingsOpenNoHeaderDialog();
    void cancelAndEscapeClose();
    void helpOpensItsTopic();
    void namesAreWords();
    void mnemonicsAndTabOrder();
    void mainWindowOpensIt();
};

void ReportSelectionTest::showsItsSections() {
    const OpenSelection open(AllSections);
    QCOMPARE(open.Window->windowTitle(), "Report Selection");
    QVERIFY(open.Window->isModal());
    const QStringList captions = {"Cash Flow", "More Home", "Affordability", "Summary",
                                  "Financial Assumptions"};
    for (int i = 0; i < captions.size(); ++i) {
        const auto& box = open.Find<QCheckBox>(boxes[i]);
        QCOMPARE(box.text().remove('&'), captions[i]);
        QVERIFY(box.isChecked());
    }
    QVERIFY(!open.Window->findChild<QWidget*>("chkReport2"));
    QStringList labels;
    for (const QLabel* label : open.Window->findChildren<QLabel*>())
        labels += label->text();
    QVERIFY(labels.contains("Ledgrove Reports"));
    QVERIFY(
        labels.contains("Select Print Reports. Add your company name and logo to reports by selecting the "
                        "Report Header button. Select the sections you want to print, then Preview and "
                        "Print."));
    QCOMPARE(open.Find<QPushButton>("bPrint").text(), "&Preview");
    QCOMPARE(open.Find<QPushButton>("bCancel").text(), "&Cancel");
    QCOMPARE(open.Find<QPushButton>("bHelp").text(), "&Help");
    const QSize room = open.Window->screen()->geometry().size() - open.Window->size();
    QCOMPARE(open.Window->pos() - open.Window->screen()->geometry().topLeft(),
             QPoint(room.width() / 2, room.height() / 2));
}

void ReportSelectionTest::lastPreviewsSectionsAreTicked() {
    OpenSelection open({true, false, false, false, true});
    QCOMPARE(open.Ticked(), "cashflow assumptions");
    open.Tick("chkReport4");
    open.Tick("chkReport1");
    open.PreviewedText();
    open.Reopen();
    QCOMPARE(open.Ticked(), "affordability assumptions");
    open.Tick("chkReport4");
    open.Tick("chkReport6");
    open.PreviewedText();
    open.Reopen();
    QCOMPARE(open.Ticked(), "none");
}

void ReportSelectionTest::onlyAPreviewKeepsTheSections() {
    OpenSelection open(AllSections);
    open.Tick("chkReport1");
    ClickAt(open.Find("bCancel"));
    QCOMPARE(NamesOf(open.Kept), NamesOf(AllSections));
}

void ReportSelectionTest::enterPreviewsFromEveryBox() {
    const OpenSelection open;
    QVERIFY(open.Find<QPushButton>("bPrint").isDefault());
    for (const char* box : boxes) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
            QVERIFY2(Opens(open, box, "frmPrint", key), box);
    }
    QCOMPARE(open.Ticked(), "none");
}

void ReportSelectionTest::enterPressesTheFocusedButton() {
    const OpenSelection open;
    QVERIFY(Opens(open, "bPrint", "frmPrint", Qt::Key_Return));
    QVERIFY(Opens(open, "cmdReportHeader", "FrmPrintOptions", Qt::Key_Return));
    QCOMPARE(open.Window->focusWidget()->objectName(), "bPrint"); // the next Enter previews
    QVERIFY(!Opens(open, "bCancel", "frmPrint", Qt::Key_Return));
    QVERIFY(!open.Window->isVisible());
}

void ReportSelectionTest::tickedSectionsReachTheReport_data() {
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QString>("banner");
    QTest::addRow("Cash Flow") << QByteArray("chkReport1") << "  Cash Flow\n";
    QTest::addRow("More Home") << QByteArray("chkReport3") << "  More Home\n";
    QTest::addRow("Affordability") << QByteArray("chkReport4") << "  Affordability\n";
    QTest::addRow("Summary") << QByteArray("chkReport5") << "  Summary\n";
    QTest::addRow("Financial Assumptions") << QByteArray("chkReport6") << "  Financial Assumptions\n";
}

void ReportSelectionTest::tickedSectionsReachTheReport() {
    QFETCH(QByteArray, box);
    QFETCH(QString, banner);
    OpenSelection open;
    FillSample(open.State, open.Outside);
    open.Tick(box);
    const QString text = open.PreviewedText();
    QVERIFY2(text.contains(banner), qPrintable(text));
    // only this section
    QCOMPARE(text.count(QRegularExpression("^  [A-Z]", QRegularExpression::MultilineOption)), 2);
    open.Tick(box);
    QVERIFY(!open.PreviewedText().contains(banner));
}

void ReportSelectionTest::withoutASectionTheReportHasItsTwoTables() {
    OpenSelection open;
    FillSample(open.State, open.Outside);
    const QString text = open.PreviewedText();
    for (const char* there : {"Summary Report for Ledgrove", "  Home Buyer Financial Information", "$72,000",
                              "10.00%", "$206,000", "Printed on 11/20/2026"})
        QVERIFY2(text.contains(there), there);
    QVERIFY(open.Window->isVisible()); // the dialog is visible again
    QVERIFY(open.Outside.Messages.empty());
}

void ReportSelectionTest::moreHomeRefreshesTheFeatures() {
    OpenSelection open;
    open.State.Scenario.PVNetCashFlow = 100; // the tab shows the features only for an amount other than zero
    open.WriteSettings(open.Settings().replace("Finished basement", "Sun room"));
    open.Tick("chkReport1");
    QCOMPARE(open.State.Screen.lblfeature1.Text, "");
    open.Tick("chkReport3");
    QCOMPARE(open.State.Screen.lblfeature1.Text, "Sun room");
    QCOMPARE(open.State.Screen.lblfeature2.Text, "Larger deck");
    QVERIFY(open.PreviewedText().contains("Sun room"));
}

void ReportSelectionTest::headerChoicesReachTheReport() {
    OpenSelection open;
    QVERIFY(WhileOpen(
        "FrmPrintOptions", [&open] { ClickAt(open.Find("cmdReportHeader")); },
        [](QWidget& dialog) {
            dialog.findChild<QLineEdit*>("ecBuilderName")->setText("Acme Homes");
            dialog.findChild<QLineEdit*>("txtHomeBuyer")->setText("Kim Park");
            ClickAt(*dialog.findChild<QPushButton*>("bOK"));
        }));
    const QString text = open.PreviewedText();
    QVERIFY(text.contains("Prepared By:  Acme Homes"));
    QVERIFY(text.contains("Prepared For: Kim Park"));
}

void ReportSelectionTest::missingSettingsOpenNoHeaderDialog() {
    OpenSelection open;
    QVERIFY(QFile::remove(open.Folder.filePath("Ledgrove.ini")));
    QVERIFY(!WhileOpen(
        "FrmPrintOptions", [&open] { ClickAt(open.Find("cmdReportHeader")); },
        [](QWidget& dialog) { dialog.close(); }));
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QVERIFY(open.Outside.Messages.front().Text.find("Ledgrove.ini") != std::string::npos);
    QVERIFY(!QFile::exists(open.Folder.filePath("Ledgrove.ini")));
}

void ReportSelectionTest::cancelAndEscapeClose() {
    for (const bool byKey : {false, true}) {
        OpenSelection open;
        if (byKey)
            open.Press(Qt::Key_Escape);
        else
            ClickAt(open.Find("bCancel"));
        QVERIFY(!open.Window->isVisible());
    }
}

void ReportSelectionTest::helpOpensItsTopic() {
    OpenSelection open;
    QFile file(open.Folder.filePath("LEDGROVE.HLP"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<html><body><a name=\"ctxReportSelection\">Reports</a></body></html>");
    file.close();
    ClickAt(open.Find("bHelp"));
    QTRY_VERIFY(open.Window->findChild<HelpWindow*>());
    QCOMPARE(open.Window->findChild<QTextBrowser*>()->source().fragment(), "ctxReportSelection");
}

void ReportSelectionTest::namesAreWords() {
    OpenSelection open;
    QCOMPARE(SpokenCodeNames(*open.Window), QStringList());
}

void ReportSelectionTest::mnemonicsAndTabOrder() {
    OpenSelection open;
    QCOMPARE(Mnemonics(*open.Window), "ACFHIMPRS");
    const QStringList expected = {"chkReport1",      "chkReport3", "chkReport4", "chkReport5", "chkReport6",
                                  "cmdReportHeader", "bPrint",     "bCancel",    "bHelp",      "chkReport1"};
    QCOMPARE(open.Focused(), "chkReport1");
    QCOMPARE(open.TabWalk("chkReport1", expected.size()), expected);
    const QStringList once = expected.first(expected.size() - 1);
    QCOMPARE(InReadingOrder(*open.Window, once), once);
    open.Press(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(open.Window->Sections().Summary);
    QVERIFY(!open.Window->Sections().Affordability);
}

void ReportSelectionTest::mainWindowOpensIt() {
    PrintDesk desk;
    MainActions actions;
    actions.Print = PrintAction(desk.State, desk.Outside, desk.Server,
                                {[] {
                                     return ReportSections{false, true, false, false, false};
                                 },
                                 {}});
    frmMain window(desk.State, desk.Outside, actions);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto* button = window.findChild<QPushButton*>("bPrint");
    QVERIFY(button->isEnabled());
    bool onlyAfterTheDataCheck = false;
    QVERIFY(WhileOpen(
        "frmReportSelection", [button] { ClickAt(*button); },
        [&](QWidget& dialog) {
            onlyAfterTheDataCheck = desk.Outside.Messages.size() == 1;
            QCOMPARE(dialog.parentWidget(), &window);
            QCOMPARE(NamesOf(dynamic_cast<frmReportSelection&>(dialog).Sections()), "morehome");
            dialog.close();
        }));
    QVERIFY(onlyAfterTheDataCheck);
}

QTEST_MAIN(ReportSelectionTest)
#include "ReportSelectionTest.moc"
