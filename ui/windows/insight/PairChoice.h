#pragma once

#include <QPushButton>
#include <cstddef>
#include <string>
#include <vector>

class QCheckBox;
class QMenu;

namespace Ledgrove {

/// The pairs of mortgage options to list, in a menu that stays open while several are checked. None stands
/// for those of the main window.
class PairChoice : public QPushButton {
    Q_OBJECT

public:
    explicit PairChoice(const std::vector<std::string>& pairs, QWidget* parent = nullptr);

    /// The indices of the checked pairs.
    std::vector<std::size_t> Chosen() const;

signals:
    /// The menu was closed with another choice.
    void Changed();

private:
    void AddBox(QMenu& menu, const QString& pair);
    void CheckAll(bool isOn);
    void ShowChoice();

    std::vector<QCheckBox*> m_boxes;
    std::vector<std::size_t> m_before; ///< the choice when the menu opened
};

} // namespace Ledgrove
