#pragma once

#include <QColor>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <optional>
#include <utility>
#include <vector>

#include "engine/MainScreen.h"

class QAbstractButton;
class QTabWidget;

namespace Ledgrove {

class ResultLabel;

/// Shows the screen record in the controls of the main window, which it finds by name. It only shows: nothing
/// that it does counts as typed or clicked.
class MainBinding {
public:
    /// Both must outlive the binding. Ends the program when the window lacks a control.
    MainBinding(const MainScreen& screen, QWidget& window);

    /// Makes the controls that differ from the record equal to it.
    void Refresh();

private:
    template <typename Member, typename Widget>
    struct Bound {
        const Member* Shown;
        Widget* Control;
        std::optional<QColor> Colour;
    };

    void FindControls();
    void RefreshFields();
    void RefreshPickLists();
    void RefreshButtons();
    void RefreshLabels();
    void RefreshTabs();
    template <typename Member, typename Widget>
    void RefreshColour(Bound<Member, Widget>& bound);

    const MainScreen& m_screen;
    QWidget& m_window;
    std::vector<Bound<Field, QLineEdit>> m_fields;
    std::vector<Bound<PickList, QComboBox>> m_pickLists;
    std::vector<Bound<Label, QLabel>> m_labels;
    std::vector<ResultLabel*> m_results;
    std::vector<QAbstractButton*> m_downPaymentOptions;
    QAbstractButton* m_taxes = nullptr;
    QTabWidget* m_tabs = nullptr;
    std::vector<QWidget*> m_panels;
};

} // namespace Ledgrove
