#pragma once

#include <QWidget>

#include "ui/Entry.h"

namespace Ledgrove {

/// The keyboard focus among the controls of a form. Controls are identified by their object names.
class FormFocus : public EntryFocus {
public:
    explicit FormFocus(QWidget& form)
        : m_form(form) {}

    std::string FocusedControl() const override;
    void ReturnFocusTo(const Field& field) override;
    void SelectFieldText() override;
    void NextField() override;
    void PreviousField() override;

private:
    QWidget& m_form;
};

} // namespace Ledgrove
