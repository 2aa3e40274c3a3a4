#pragma once

#include <QByteArray>
#include <QObject>
#include <QWidget>

#include "ui/ChartFigures.h"

namespace Ledgrove {

enum class PictureFormat { Png, Svg };

/// A chart on the screen. Its accessible description and its tool tip describe the figures in words. It has
/// no meta-object, because the program and the chart library would each have their own copy.
class ChartWidget : public QWidget {
public:
    using QWidget::QWidget;

    /// Replaces the figures. They must be of the kind for which the chart was made.
    virtual void Show(const ChartFigures& figures) = 0;

    /// The chart as a picture file, on white whatever the screen's palette.
    virtual QByteArray Picture(PictureFormat format) const = 0;
};

/// Makes charts. It is in a separate library that is loaded with the first chart, so the program starts
/// without it.
class ChartFactory {
public:
    virtual ~ChartFactory() = default;

    virtual ChartWidget* Make(ChartKind kind, QWidget* parent) = 0;
};

} // namespace Ledgrove

#define LEDGROVE_CHART_FACTORY "ledgrove.ChartFactory"
Q_DECLARE_INTERFACE(Ledgrove::ChartFactory, LEDGROVE_CHART_FACTORY)
