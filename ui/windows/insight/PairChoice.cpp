#include "ui/windows/insight/PairChoice.h"

#include <QCheckBox>
#include <QMenu>
#include <QWidgetAction>

#include "ui/windows/Identify.h"

namespace Ledgrove {

PairChoice::PairChoice(const std::vector<std::string>& pairs, QWidget* parent)
    : QPushButton(parent) {
    auto* choices = new QMenu(this);
    choices->addAction("Those of the &main window", this, [this] { CheckAll(false); });
    choices->addAction("&Every pair of options", this, [this] { CheckAll(true); });
    choices->addSeparator();
    for (const std::string& pair : pairs)
        AddBox(*choices, QString::fromStdString(pair));
    connect(choices, &QMenu::aboutToShow, this, [this] { m_before = Chosen(); });
    connect(choices, &QMenu::aboutToHide, this, [this] {
        if (Chosen() != m_before)
            emit Changed();
    });
    setMenu(choices);
    ShowChoice();
}

void PairChoice::AddBox(QMenu& menu, const QString& pair) {
    auto* box = new QCheckBox(pair);
    box->setContentsMargins(8, 0, 8, 0);
    auto* action = new QWidgetAction(&menu);
    action->setDefaultWidget(box);
    menu.addAction(action);
    m_boxes.push_back(box);
    connect(box, &QCheckBox::toggled, this, &PairChoice::ShowChoice);
}

std::vector<std::size_t> PairChoice::Chosen() const {
    std::vector<std::size_t> chosen;
    for (std::size_t pair = 0; pair < m_boxes.size(); ++pair)
        if (m_boxes[pair]->isChecked())
            chosen.push_back(pair);
    return chosen;
}

void PairChoice::CheckAll(bool isOn) {
    // The action closes the menu before it is triggered.
    const auto before = Chosen();
    for (QCheckBox* box : m_boxes)
        box->setChecked(isOn);
    if (Chosen() != before)
        emit Changed();
}

void PairChoice::ShowChoice() {
    const auto chosen = Chosen();
    QString words = QString("%1 pairs").arg(chosen.size());
    if (chosen.empty())
        words = "Those of the main window";
    else if (chosen.size() == m_boxes.size())
        words = "Every pair of options";
    else if (chosen.size() == 1)
        words = m_boxes[chosen.front()]->text();
    setText(words);
    SetSpokenName(*this, "Mortgage options: " + words);
}

} // namespace Ledgrove
