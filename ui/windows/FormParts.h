#pragma once

#include <QString>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

// What the forms are made of, so that they look and read alike. Names are given as to Identify.
namespace Ledgrove {

class EntryField;

/// An edit field for a figure, right-aligned.
EntryField* MakeField(const QString& control, const QString& humanName);

/// A figure among the fields that cannot be edited.
QLineEdit* MakeDisplay(const QString& control, const QString& humanName);

/// The caption of `field`, which its mnemonic reaches.
QLabel* MakeCaption(const QString& text, QWidget* field);

/// The head of a column.
QLabel* MakeHead(const QString& text);

/// A push button. Enter is for the fields, so no button is pressed by it from elsewhere.
QPushButton* MakeButton(const char* control, const QString& caption);

QGridLayout* MakeGrid(QWidget* parent);

/// Gives the window its natural size, in the middle of its screen.
void CentreOnScreen(QWidget& window);

} // namespace Ledgrove
