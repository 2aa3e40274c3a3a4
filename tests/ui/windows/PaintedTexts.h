#pragma once

#include <QBuffer>
#include <QList>
#include <QSvgGenerator>
#include <QXmlStreamReader>

#include "ui/windows/insight/PicturePainter.h"

// Shared by the tests of what a picture says, and where.
namespace Ledgrove {

struct PaintedText {
    QString Words;
    QPointF At; ///< the left end of its base line
};

/// The texts of a chart painted with this size and font, in the order of their painting.
inline QList<PaintedText> PaintedTexts(const ChartFigures& chart, const QSize& size, const QFont& font) {
    QBuffer file;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setSize(size);
    generator.setResolution(96); // as the widgets measure their fonts
    QPainter painter(&generator);
    painter.setFont(font);
    PaintPicture(painter, QRectF({0, 0}, QSizeF(size)), chart, QPalette());
    painter.end();
    QList<PaintedText> texts;
    QXmlStreamReader reader(file.data());
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() || reader.name() != QLatin1String("text"))
            continue;
        const auto number = [&reader](const char* name) {
            return reader.attributes().value(QLatin1String(name)).toDouble();
        };
        const QPointF at(number("x"), number("y"));
        texts.append({reader.readElementText().trimmed(), at});
    }
    return texts;
}

} // namespace Ledgrove
