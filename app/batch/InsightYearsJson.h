#pragma once

#include "app/batch/JsonValues.h"
#include "insight/Views.h"

// The views over the years as JSON. Each function writes one object.
namespace Ledgrove::Json {

void WriteYears(Writer& json, const YearByYear& years);
void WriteEnergy(Writer& json, const EnergyGrowth& energy);
void WriteTax(Writer& json, const TaxCheck& tax);
void WriteExit(Writer& json, const SaleByYear& exit);

} // namespace Ledgrove::Json
