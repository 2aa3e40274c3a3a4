#pragma once

#include <QLabel>

namespace Ledgrove {

/// A label of several lines, of which each is elided in the middle if it is too long. It never widens its
/// layout.
class StatusLines : public QLabel {
    Q_OBJECT

public:
    /// Keeps room for this number of lines.
    explicit StatusLines(int lines, QWidget* parent = nullptr);

    /// The lines as painted in the current width.
    QStringList ShownLines() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Ledgrove
