#include "ui/windows/insight/YearSwitch.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "ui/windows/Identify.h"

namespace Ledgrove {

YearSwitch::YearSwitch(QWidget* parent)
    : QWidget(parent)
    , m_years(new QComboBox) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    auto* caption = new QLabel("Sho&w:");
    Identify(*m_years, "Years", "Years or months of the table");
    m_years->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // By default, the wheel gives it the focus.
    m_years->setFocusPolicy(Qt::StrongFocus);
    caption->setBuddy(m_years);
    row->addWidget(caption);
    row->addWidget(m_years);
    row->addStretch();
    connect(m_years, &QComboBox::activated, this, &YearSwitch::Chosen);
}

void YearSwitch::Show(int years, int year) {
    setVisible(years > 0);
    if (years == 0)
        return;
    const QSignalBlocker nothingChosen(m_years);
    if (m_years->count() != years + 1) {
        m_years->clear();
        m_years->addItem("All years");
        for (int number = 1; number <= years; ++number)
            m_years->addItem(QString("Year %1, by month").arg(number));
    }
    m_years->setCurrentIndex(year);
}

} // namespace Ledgrove
