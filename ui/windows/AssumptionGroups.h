#pragma once

#include <QGroupBox>

#include "ui/AssumptionsScreen.h"

// Creates the groups of the assumptions dialog: the controls and their layout; the window connects them.
namespace Ledgrove {

/// The control name of a row, such as "FER1" for the first.
QString RowControl(const char* control, std::size_t row);

QGroupBox* MakePMIMultipliers();
QGroupBox* MakePresentValue();
/// Seven rows. Those without a loan type in the record are disabled.
QGroupBox* MakeQualifierRatios(const AssumptionsScreen& record);
QGroupBox* MakeTaxesAndInsurance();
/// Six rows. Words replace the high end of the last bracket; if it is beyond the rows, a line under them says
/// so.
QGroupBox* MakeTaxSchedule(const AssumptionsScreen& record);
QGroupBox* MakeOtherVariables();

} // namespace Ledgrove
