#pragma once

namespace Ledgrove::Testing {

/// A descriptor that takes no byte and says nothing of it: `write` gives 0 for it in every program that
/// StuckDescriptor.cpp is part of. It is not an open file.
inline constexpr int StuckDescriptor = 1'000'000;

/// How often something was written to it.
int StuckWrites();

} // namespace Ledgrove::Testing
