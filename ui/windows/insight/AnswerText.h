#pragma once

class QLabel;

namespace Ledgrove {

/// A label that wraps and that a mouse or a screen reader can copy from.
QLabel* MakeWrappedText(const char* control);

/// A part of an answer: Tab stops at it, and keys select its text and copy it.
QLabel* MakeAnswerText(const char* control);

/// The size of an answer's sentence.
void MakeLarger(QLabel& label);

} // namespace Ledgrove
