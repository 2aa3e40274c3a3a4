#include "ui/windows/charts/ChartPicture.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QLayout>
#include <QPainter>
#include <QSvgGenerator>
#include <memory>

#include "ui/windows/charts/QtChart.h"

namespace Ledgrove {

namespace {

constexpr int dotsPerPixel = 2;
constexpr int margin = 12;

/// Makes a separate chart, so that the screen's size and colours do not matter.
std::unique_ptr<QtChart> MakePicture(const ChartFigures& figures, const QSize& size) {
    std::unique_ptr<QtChart> chart(MakeQtChart(figures.Kind, nullptr));
    QPalette paper;
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    chart->setPalette(paper);
    chart->setAttribute(Qt::WA_DontShowOnScreen);
    chart->resize(size);
    chart->layout()->setContentsMargins(margin, margin, margin, margin);
    chart->show();
    chart->Show(figures);
    // Qt Charts finishes its layout in queued events.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return chart;
}

QByteArray PngPicture(QtChart& chart, const QSize& size) {
    QImage image(size * dotsPerPixel, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDevicePixelRatio(dotsPerPixel);
    chart.render(&image);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray SvgPicture(QtChart& chart, const QSize& size) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setResolution(96);
    generator.setViewBox(QRect({0, 0}, size));
    generator.setTitle(chart.accessibleName());
    generator.setDescription(chart.accessibleDescription());
    QPainter painter(&generator);
    painter.fillRect(QRect({0, 0}, size), Qt::white);
    auto* view = chart.findChild<QChartView*>();
    view->render(&painter, view->geometry());
    painter.end();
    return bytes;
}

} // namespace

QByteArray ChartPicture(const ChartFigures& figures, PictureFormat format, const QSize& size) {
    const std::unique_ptr<QtChart> chart = MakePicture(figures, size);
    return format == PictureFormat::Png ? PngPicture(*chart, size) : SvgPicture(*chart, size);
}

} // namespace Ledgrove
