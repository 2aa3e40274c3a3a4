#include <QComboBox>
#include <QPushButton>

#include "engine/Recalculate.h"
#include "insight/Range.h"
#include "reports/windows/BriefPrint.h"
#include "reports/windows/RangePrint.h"
#include "tests/reports/windows/PrintDesk.h"
#include "ui/HouseRange.h"

using namespace Ledgrove;

namespace {

struct PaperDesk : ComparisonDesk {
    PaperDesk() { Module1::Recalculate(State, Outside); }

    bool PreviewBrief(const std::function<void(frmPrint&)>& act) {
        return WhileOpen(
            "frmPrint", [this] { Ledgrove::PreviewBrief(State, Outside, Machine, nullptr); },
            [&act](QWidget& window) { act(static_cast<frmPrint&>(window)); });
    }
};

} // namespace

/// The previews of the buyer's brief and of the house range.
class OtherPreviewsTest : public QObject {
    Q_OBJECT

private slots:
    void theBriefIsOnePageInEveryOrientation();
    void theBriefPrints();
    void withoutPricesThereIsNoBrief();
    void theHouseRangeBeginsInLandscape();
};

void OtherPreviewsTest::theBriefIsOnePageInEveryOrientation() {
    PaperDesk desk;
    QVERIFY(desk.PreviewBrief([](frmPrint& preview) {
        QCOMPARE(preview.windowTitle(), "Buyer's Brief");
        QCOMPARE(preview.Document().PageCount(), std::size_t{1});
        auto* orientation = preview.findChild<QComboBox*>("cboOrientation");
        QCOMPARE(orientation->currentText(), "Portrait");
        orientation->setCurrentIndex(1);
        QCOMPARE(preview.Document().PageCount(), std::size_t{1});
        preview.reject();
    }));
}

void OtherPreviewsTest::theBriefPrints() {
    PaperDesk desk;
    desk.State.Header.HomeBuyer = "Pat Doe";
    QVERIFY(desk.PreviewBrief([](frmPrint& preview) {
        preview.findChild<QPushButton*>("cmdPrint")->click();
        preview.reject();
    }));
    QCOMPARE(desk.Server.Jobs.size(), std::size_t{1});
    const QString text = PdfText(desk.Server.Jobs.front().Pdf);
    QVERIFY2(text.contains("Prepared For: Pat Doe"), qPrintable(text));
    QVERIFY2(text.contains("What both homes cost a month"), qPrintable(text));
}

void OtherPreviewsTest::withoutPricesThereIsNoBrief() {
    PaperDesk desk;
    desk.State.Screen.ecGMHHome.Text = "";
    PreviewBrief(desk.State, desk.Outside, desk.Machine, nullptr);
    QCOMPARE(desk.Outside.TakeTexts(), std::vector<std::string>{"Enter the price of the GREENMARK home."});
}

void OtherPreviewsTest::theHouseRangeBeginsInLandscape() {
    PaperDesk desk;
    const auto range = ComputeHouseRange(desk.State, {{"Oak", 200000, 2400, 206000, 1700}});
    QVERIFY(range);
    const auto act = [](QWidget& window) {
        auto& preview = static_cast<frmPrint&>(window);
        QCOMPARE(preview.windowTitle(), "House Range");
        QCOMPARE(preview.findChild<QComboBox*>("cboOrientation")->currentText(), "Landscape");
        QVERIFY(preview.Document().Geometry.PageWidth > preview.Document().Geometry.PageHeight);
        preview.reject();
    };
    QVERIFY(WhileOpen(
        "frmPrint", [&] { PreviewRange(desk.State, desk.Outside, desk.Machine, *range, nullptr); }, act));
}

QTEST_MAIN(OtherPreviewsTest)
#include "OtherPreviewsTest.moc"
