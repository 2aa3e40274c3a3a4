#pragma once

#include <QLabel>
#include <QString>

namespace Ledgrove {

/// A one-line label that never widens its layout. A text that is too long ends in dots, and the tool tip
/// shows all of it.
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

/// A picture that only decorates: screen readers pass over it.
class DecorationLabel : public QLabel {
    Q_OBJECT

public:
    explicit DecorationLabel(QWidget* parent = nullptr);
};

/// A right-aligned figure that a recalculation writes. It keeps its place while it is hidden. All usual
/// figures have the same width; a longer one gets more where there is room beside it, and otherwise ends in
/// dots instead of showing only some digits.
class ResultLabel : public ElidedLabel {
    Q_OBJECT

public:
    /// `caption` and `column` describe the figure. The text of the caption may change.
    ResultLabel(const QString& control, const QLabel& caption, QString column, QWidget* parent = nullptr);

    /// Reads the caption as the end of this caption of another row, up to its colon.
    void ContinueCaption(const QLabel& stem);
    /// Shows what the figure includes as the tool tip, and adds it to the description.
    void Explain(const QString& meaning);

    /// Updates the description from the caption.
    void Describe();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    const QLabel& m_caption;
    QString m_column;
    const QLabel* m_stem = nullptr;
    QString m_meaning;
};

/// A label with a fixed text.
QLabel* TextLabel(const QString& text, QWidget* parent = nullptr);

/// A label whose text a recalculation writes. It keeps its place while it is hidden.
QLabel* CaptionLabel(const QString& control, QWidget* parent = nullptr);

void MakeBold(QWidget& widget);

/// Keeps the layout unchanged while the widget is hidden.
void KeepPlaceWhileHidden(QWidget& widget);

} // namespace Ledgrove
