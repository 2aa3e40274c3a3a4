// The floor for the report as a whole process: a program that paints three pages of plain tables as PDF, with
// about as many texts (170), rules (190) and shades (12), in the same fonts, as the sample's full report.

#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

namespace {

// In twips, 1440 per inch, as in the report.
constexpr int left = 720;
constexpr int top = 1440;
constexpr int columnWidth = 3600;
constexpr int rowHeight = 560;
constexpr int columns = 3;
constexpr int rows = 18;
constexpr int twipsPerPoint = 20;

QFont FontOf(int points, bool bold, bool italic) {
    QFont font("Arial");
    font.setPixelSize(points * twipsPerPoint);
    font.setBold(bold);
    font.setItalic(italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QString CellOf(int page, int row, int column) {
    const int amount = 1000 + page * 97 + row * 4711 % 9000;
    if (column > 0)
        return QString("$%1,%2").arg(amount / 10).arg(amount % 1000, 3, 10, QChar('0'));
    return row ? QString("%1 Net Monthly Payment & Taxes").arg(row) : QString("GREENMARK Home (Base Home)");
}

void PaintTable(QPainter& painter, int page) {
    const int right = left + columns * columnWidth;
    painter.setPen(Qt::NoPen);
    for (const int row : {0, 6, 12, 17})
        painter.fillRect(left, top + row * rowHeight, columns * columnWidth, rowHeight, Qt::lightGray);
    painter.setPen(QPen(Qt::black, 15));
    for (int row = 0; row <= rows; ++row)
        painter.drawLine(left, top + row * rowHeight, right, top + row * rowHeight);
    for (int row = 0; row < rows; row += 2) {
        for (int edge = 0; edge <= columns; ++edge) {
            const int x = left + edge * columnWidth;
            painter.drawLine(x, top + row * rowHeight, x, top + (row + 2) * rowHeight);
        }
    }
    const QFont plain = FontOf(9, false, false);
    const QFont heading = FontOf(9, true, false);
    for (int row = 0; row < rows; ++row) {
        painter.setFont(row ? plain : heading);
        for (int column = 0; column < columns; ++column)
            painter.drawText(left + column * columnWidth + 100, top + row * rowHeight + 380,
                             CellOf(page, row, column));
    }
}

void PaintPage(QPainter& painter, int page) {
    painter.setFont(page ? FontOf(12, true, true) : FontOf(16, false, false));
    painter.drawText(left, 1100, "Summary Report");
    PaintTable(painter, page);
    painter.setFont(FontOf(8, false, false));
    painter.drawText(left, 15200, "Printed on 11/20/2026");
    painter.drawText(left + columns * columnWidth - 900, 15200, QString("Page %1").arg(page + 1));
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2)
        return 2;
    QPdfWriter writer(argv[1]);
    writer.setResolution(1440);
    writer.setPageLayout({QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF()});
    QPainter painter;
    if (!painter.begin(&writer))
        return 1;
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (int page = 0; page < 3; ++page) {
        if (page > 0 && !writer.newPage())
            return 1;
        PaintPage(painter, page);
    }
    return painter.end() ? 0 : 1;
}
