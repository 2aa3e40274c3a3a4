#include "reports/windows/PdfExtras.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using testing::HasSubstr;

/// Two pages of letter paper.
QByteArray TwoPages() {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&file);
        writer.setTitle("Report");
        QPainter painter(&writer);
        painter.drawLine(0, 0, 100, 100);
        writer.newPage();
        painter.drawLine(0, 0, 100, 100);
    }
    return file.data();
}

std::string Added(const QByteArray& pdf, const PdfExtras& extras) {
    const QByteArray result = WithExtras(pdf, extras);
    EXPECT_TRUE(result.startsWith(pdf)); // the file's own bytes stay
    return result.mid(pdf.size()).toStdString();
}

TEST(PdfExtras, AddsAuthorAndLanguage) {
    const std::string added = Added(TwoPages(), {"A\xC3\xA4", "en-US", 792, {}});
    EXPECT_THAT(added, HasSubstr("/Author <FEFF004100E4>"));
    EXPECT_THAT(added, HasSubstr("/Lang <FEFF0065006E002D00550053>"));
    EXPECT_THAT(added, HasSubstr("/DisplayDocTitle true"));
    EXPECT_THAT(added, HasSubstr("/Title (")); // as before
    EXPECT_THAT(added, testing::Not(HasSubstr("/Outlines")));
}

TEST(PdfExtras, TheOutlineNamesPageAndHeight) {
    const std::string added = Added(TwoPages(), {"", "en-US", 792, {{"A", 0, 100}, {"B", 1, 50.5}}});
    EXPECT_THAT(added, HasSubstr("/Title <FEFF0041>"));
    EXPECT_THAT(added, HasSubstr("/XYZ null 692.00 null")); // measured from the bottom of the page
    EXPECT_THAT(added, HasSubstr("/XYZ null 741.50 null"));
    EXPECT_THAT(added, HasSubstr("/Count 2"));
    EXPECT_THAT(added, testing::Not(HasSubstr("/Author")));
}

TEST(PdfExtras, AnyOtherFileStaysAsItIs) {
    const PdfExtras extras{"A", "en-US", 792, {{"A", 0, 100}}};
    const QByteArray pdf = TwoPages();
    for (const QByteArray& other :
         {QByteArray(), QByteArray("startxref"),
          QByteArray("%PDF-1.4\nstartxref\n-5\ntrailer\n<<\n/Size 9\n>>"),
          QByteArray("%PDF-1.4\nxref\n0 3\ntrailer\n<<\n/Size 3\n/Root 2 0 R\n>>\nstartxref\n9\n")})
        EXPECT_EQ(WithExtras(other, extras), other);
    for (qsizetype length = 0; length < pdf.size(); length += 7)
        WithExtras(pdf.left(length), extras); // no fault, whatever the result
}

} // namespace
} // namespace Ledgrove

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
