#include "ui/windows/insight/SheetRange.h"

#include <QLocale>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Ledgrove {

namespace {

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString WithoutLastZeros(QString digits) {
    while (digits.contains('.') && (digits.endsWith('0') || digits.endsWith('.')))
        digits.chop(1);
    return digits;
}

/// The shortest decimal that reads back as the same number of single precision.
QString Shortest(double number) {
    constexpr std::size_t mostDigits = 64;
    std::array<char, mostDigits> text{};
    const auto end = std::to_chars(text.begin(), text.end(), static_cast<float>(number)).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

/// Fractions are stored in single precision: 0.065F is 6.5 percent, not 6.499999761581421.
QString PercentText(double percent) {
    constexpr int singleDigits = 9;
    return QString::number(Shortest(percent / 100).toDouble() * 100, 'g', singleDigits);
}

/// All amounts come from numbers of single precision, so more digits would mean nothing.
QString NumberText(const SheetCell& cell) {
    constexpr double coarserThanCents = 131072; // from here the steps of single precision are 1/64
    const double number = *cell.Number;
    if (cell.Unit == CellUnit::Percent)
        return PercentText(number);
    if (std::fabs(number) >= coarserThanCents || number == std::trunc(number))
        return WithoutLastZeros(QString::number(number + 0.0, 'f', 2));
    return QString::number(Shortest(number).toDouble(), 'f', QLocale::FloatingPointShortest);
}

/// The number of a text that is one: "$206,000" is 206000, "100%" is 100, "30 years" is 30. Others stay.
QString WithoutSigns(const QString& text) {
    static const QRegularExpression number(R"(^([+-]?)\$?(\d{1,3}(?:,\d{3})+|\d+)(\.\d+)?(?:%| years?)?$)");
    const QRegularExpressionMatch match = number.match(text);
    if (!match.hasMatch())
        return text;
    const QString sign = match.captured(1) == "-" ? "-" : "";
    const QString fraction = match.captured(3);
    const qsizetype places = fraction.size() - 1;
    const double value = (match.captured(2).remove(',') + fraction).toDouble();
    return sign +
           WithoutLastZeros(QString::number(value, 'f', static_cast<int>(std::max<qsizetype>(places, 0))));
}

QString CellText(const Sheet& sheet, const SheetCell& cell, std::size_t column) {
    if (cell.Number)
        return NumberText(cell);
    const bool isWords = column == 0 || std::ranges::find(sheet.Words, column) != sheet.Words.end();
    return isWords ? Words(cell.Text) : WithoutSigns(Words(cell.Text));
}

} // namespace

QString SheetAsRange(const Sheet& sheet) {
    QStringList heads;
    for (const std::string& head : sheet.Heads)
        heads += WithoutSigns(Words(head));
    QString text = heads.join('\t') + '\n';
    for (const auto& row : sheet.Rows) {
        QStringList cells;
        for (std::size_t column = 0; column < row.size(); ++column)
            cells += CellText(sheet, row[column], column);
        text += cells.join('\t') + '\n';
    }
    return text;
}

} // namespace Ledgrove
