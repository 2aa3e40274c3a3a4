#pragma once

#include <QString>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

// Creates the parts of the forms, so that all forms look and read alike. For the names, see Identify.
namespace Ledgrove {

class EntryField;

/// A right-aligned edit field for a figure.
EntryField* MakeField(const QString& control, const QString& humanName);

/// A figure among the fields that the user cannot edit.
QLineEdit* MakeDisplay(const QString& control, const QString& humanName);

/// The caption of `field`; its mnemonic moves the focus to the field.
QLabel* MakeCaption(const QString& text, QWidget* field);

/// A column heading.
QLabel* MakeHead(const QString& text);

/// A push button. Enter belongs to the fields, so it does not press a button without the focus.
QPushButton* MakeButton(const char* control, const QString& caption);

QGridLayout* MakeGrid(QWidget* parent);

} // namespace Ledgrove
