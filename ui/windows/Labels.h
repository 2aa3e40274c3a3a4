#pragma once

#include <QLabel>
#include <QString>

namespace Ledgrove {

/// One line that never widens the layout around it: a text too long for its place ends in dots, and the tip
/// shows the whole.
class ElidedLabel : public QLabel {
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool IsTooLong() const;
};

/// A label that a recalculation writes, right-aligned. It keeps one width whatever its figure, and its place
/// while it is hidden; a figure that is too long ends in dots instead of showing some of its digits.
class ResultLabel : public ElidedLabel {
    Q_OBJECT

public:
    /// `caption` and `column` say what the figure is; the caption's words may change.
    ResultLabel(const QString& control, const QLabel& caption, QString column, QWidget* parent = nullptr);

    /// Brings the description up to date with the caption.
    void Describe();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    const QLabel& m_caption;
    QString m_column;
};

/// A label for fixed words.
QLabel* TextLabel(const QString& text, QWidget* parent = nullptr);

/// A label whose words a recalculation writes; it keeps its place while it is hidden.
QLabel* CaptionLabel(const QString& control, QWidget* parent = nullptr);

void MakeBold(QWidget& widget);

/// The layout around the widget stays as it is while the widget is hidden.
void KeepPlaceWhileHidden(QWidget& widget);

} // namespace Ledgrove
