#pragma once

#include <QByteArray>
#include <QObject>
#include <QWidget>

#include "ui/ChartFigures.h"

namespace Ledgrove {

enum class PictureFormat { Png, Svg };

/// A chart on the screen. It says in words what it draws: as its accessible description and as tool tip.
/// No meta-object: the program and the charts' library would each have one of their own.
class ChartWidget : public QWidget {
public:
    using QWidget::QWidget;

    /// Draws these figures instead of those before. They are of the kind that the chart was made for.
    virtual void Show(const ChartFigures& figures) = 0;

    /// The chart as a file, on white whatever the screen's palette.
    virtual QByteArray Picture(PictureFormat format) const = 0;
};

/// Makes charts. It lives in a library of its own that is loaded when the first chart is shown, so that the
/// program starts without it.
class ChartFactory {
public:
    virtual ~ChartFactory() = default;

    virtual ChartWidget* Make(ChartKind kind, QWidget* parent) = 0;
};

} // namespace Ledgrove

#define LEDGROVE_CHART_FACTORY "ledgrove.ChartFactory"
Q_DECLARE_INTERFACE(Ledgrove::ChartFactory, LEDGROVE_CHART_FACTORY)
