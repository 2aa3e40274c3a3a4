#include "ui/windows/Binding.h"

#include <QAbstractButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <algorithm>

#include "ui/windows/EntryField.h"
#include "ui/windows/Labels.h"
#include "ui/windows/TextColours.h"

namespace Ledgrove {

namespace {

QString Shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

template <typename Widget>
Widget* Find(const QWidget& window, std::string_view name) {
    return window.findChild<Widget*>(Shown(name));
}

/// A control that the window must have. A window without it would show half a record, so it ends the program.
template <typename Widget>
Widget* Required(const QWidget& window, std::string_view name) {
    auto* found = Find<Widget>(window, name);
    if (!found)
        qFatal("The main window has no control \"%s\".", qUtf8Printable(Shown(name)));
    return found;
}

bool HoldsItems(const QComboBox& combo, std::span<const PickItem> items) {
    if (combo.count() != static_cast<int>(items.size()))
        return false;
    for (int i = 0; i < combo.count(); ++i) {
        if (combo.itemText(i) != Shown(items[static_cast<std::size_t>(i)].Text))
            return false;
    }
    return true;
}

void SetItems(QComboBox& combo, std::span<const PickItem> items) {
    combo.clear();
    for (const PickItem& item : items)
        combo.addItem(Shown(item.Text), item.Code);
}

} // namespace

MainBinding::MainBinding(const MainScreen& screen, QWidget& window)
    : m_screen(screen)
    , m_window(window) {
    FindControls();
}

void MainBinding::FindControls() {
    for (const auto& [name, member] : FieldTable()) {
        // The window does not show these two rates.
        if (member != &MainScreen::ecRate && member != &MainScreen::ecSaveRate)
            m_fields.push_back({&(m_screen.*member), Required<QLineEdit>(m_window, name), {}});
    }
    for (const auto& [name, member] : PickListTable())
        m_pickLists.push_back({&(m_screen.*member), Required<QComboBox>(m_window, name), {}});
    for (const auto& [name, member] : LabelTable())
        m_labels.push_back({&(m_screen.*member), Required<QLabel>(m_window, name), {}});
    for (ResultLabel* result : m_window.findChildren<ResultLabel*>())
        m_results.push_back(result);
    for (const char* name : {"optDownPayment0", "optDownPayment1"})
        m_downPaymentOptions.push_back(Required<QAbstractButton>(m_window, name));
    m_taxes = Required<QAbstractButton>(m_window, "chkDoTax0");
    m_tabs = Required<QTabWidget>(m_window, "SSTab1");
    for (int i = 0; i < TabCount; ++i)
        m_panels.push_back(Required<QWidget>(m_window, "DetlFrame" + std::to_string(i)));
}

void MainBinding::Refresh() {
    RefreshFields();
    RefreshPickLists();
    RefreshButtons();
    RefreshLabels();
    RefreshTabs();
}

template <typename Member, typename Widget>
void MainBinding::RefreshColour(Bound<Member, Widget>& bound) {
    const auto colour = ColourOn(m_window.palette(), bound.Shown->Colour);
    if (colour == bound.Colour)
        return;
    SetTextColour(*bound.Control, colour);
    bound.Colour = colour;
}

void MainBinding::RefreshFields() {
    for (auto& bound : m_fields) {
        ShowText(*bound.Control, bound.Shown->Text);
        RefreshColour(bound);
    }
}

void MainBinding::RefreshPickLists() {
    for (auto& [list, combo, colour] : m_pickLists) {
        const QSignalBlocker nothingChosen(combo);
        if (!HoldsItems(*combo, list->Items))
            SetItems(*combo, list->Items);
        if (combo->currentIndex() != list->Selected)
            combo->setCurrentIndex(list->Selected);
    }
}

void MainBinding::RefreshButtons() {
    for (std::size_t i = 0; i < m_downPaymentOptions.size(); ++i) {
        if (m_screen.optDownPayment == static_cast<int>(i))
            m_downPaymentOptions[i]->setChecked(true);
    }
    m_taxes->setChecked(m_screen.chkDoTax0);
}

void MainBinding::RefreshLabels() {
    for (auto& bound : m_labels) {
        const QString text = Shown(bound.Shown->Text);
        if (bound.Control->text() != text)
            bound.Control->setText(text);
        if (bound.Control->isHidden() == bound.Shown->Visible)
            bound.Control->setVisible(bound.Shown->Visible);
        RefreshColour(bound);
    }
    for (ResultLabel* result : m_results)
        result->Describe();
}

void MainBinding::RefreshTabs() {
    const QSignalBlocker nothingClicked(m_tabs);
    m_tabs->setCurrentIndex(m_screen.SSTab1);
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        if (m_panels[i]->isHidden() == m_screen.DetlFrame[i])
            m_panels[i]->setVisible(m_screen.DetlFrame[i]);
    }
}

} // namespace Ledgrove
