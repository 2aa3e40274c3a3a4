#pragma once

#include <QGroupBox>

#include "ui/AssumptionsScreen.h"

// Creates the groups of the assumptions dialog: the controls and their layout; the window connects them.
namespace Ledgrove {

/// The control name of a row, such as "FER1" for the first.
QString RowControl(const char* control, std::size_t row);

QGroupBox* MakePMIMultipliers();
QGroupBox* MakePresentValue();
/// One row for each loan type in the record.
QGroupBox* MakeQualifierRatios(const AssumptionsScreen& record);
QGroupBox* MakeTaxesAndInsurance();
/// Words replace the high end of the row `lastRow` (counted from 0).
QGroupBox* MakeTaxSchedule(std::size_t lastRow);
QGroupBox* MakeOtherVariables();

} // namespace Ledgrove
