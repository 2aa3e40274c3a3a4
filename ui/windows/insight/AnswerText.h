#pragma once

class QLabel;

namespace Ledgrove {

/// A label that wraps and that a mouse or a screen reader can copy from.
QLabel* MakeAnswerText(const char* control);

/// The size of an answer's sentence.
void MakeLarger(QLabel& label);

} // namespace Ledgrove
