#pragma once

namespace Ledgrove::Testing {

/// A descriptor for which `write` returns 0 without an error, in every program that includes
/// StuckDescriptor.cpp. It is not an open file.
inline constexpr int StuckDescriptor = 1'000'000;

/// The number of writes to the descriptor.
int StuckWrites();

} // namespace Ledgrove::Testing
