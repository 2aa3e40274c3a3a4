#pragma once

#include <QGroupBox>

#include "ui/AssumptionsScreen.h"

// The groups of the assumptions dialog: only the controls and their places; the window connects them.
namespace Ledgrove {

/// The name of a row's control, "FER1" for the first.
QString RowControl(const char* control, std::size_t row);

QGroupBox* MakePMIMultipliers();
QGroupBox* MakePresentValue();
/// A row for each loan type that the record shows.
QGroupBox* MakeQualifierRatios(const AssumptionsScreen& record);
QGroupBox* MakeTaxesAndInsurance();
/// The high end of the row `lastRow` (counted from 0) is hidden behind words.
QGroupBox* MakeTaxSchedule(std::size_t lastRow);
QGroupBox* MakeOtherVariables();

} // namespace Ledgrove
