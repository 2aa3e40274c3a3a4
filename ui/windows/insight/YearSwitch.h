#pragma once

#include <QWidget>

class QComboBox;

namespace Ledgrove {

/// Chooses what the table of the years lists: all years, or one by month.
class YearSwitch : public QWidget {
    Q_OBJECT

public:
    explicit YearSwitch(QWidget* parent = nullptr);

    /// Offers this many years, with `year` chosen; 0 stands for all years. Hidden without any.
    void Show(int years, int year);

signals:
    /// The user chose this year; 0 for all years.
    void Chosen(int year);

private:
    QComboBox* m_years;
};

} // namespace Ledgrove
