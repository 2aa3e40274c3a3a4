#pragma once

#include <QWidget>

#include "ui/windows/ChangesWindow.h"

class QComboBox;
class QGridLayout;

namespace Ledgrove {

/// The two lists of the window "What changed?", with the buttons beside them.
class ChangesSides : public QWidget {
    Q_OBJECT

public:
    explicit ChangesSides(QWidget* parent = nullptr);

    /// Fills both lists. A chosen comparison stays chosen; if it is gone, "From" goes to the usual one and
    /// "To" to the screen.
    void Show(const ChangesChoices& choices);

    void Choose(const std::string& from, const std::string& to);
    std::string From() const;
    std::string To() const;

signals:
    /// The user chose another comparison, or exchanged the two.
    void Chosen();
    /// A file is asked for on one of the sides.
    void FromFileAsked();
    void ToFileAsked();

private:
    QComboBox* AddSide(QGridLayout& grid, int row, const QString& caption, const QString& spoken);
    void AddButton(QGridLayout& grid, int row, const QString& caption, void (ChangesSides::*asked)());
    void Swap();

    QComboBox* m_from = nullptr;
    QComboBox* m_to = nullptr;
};

} // namespace Ledgrove
