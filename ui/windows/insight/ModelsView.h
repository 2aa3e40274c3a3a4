#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "ui/windows/ModelsContext.h"
#include "ui/windows/insight/SheetModel.h"

class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;

namespace Ledgrove {

class PairChoice;
class SheetView;

/// "All our models": every saved house for the buyer. A long list is computed while the window stays usable.
class ModelsView : public QWidget {
    Q_OBJECT

public:
    /// `enter` takes a house and its options into the main window.
    ModelsView(ModelsContext context, std::function<void(const std::vector<EntryText>&)> enter,
               QWidget* parent = nullptr);

    /// Lists the houses anew. The list before stays until then.
    void Restart();
    /// Gives up a list that is not finished.
    void GiveUp();

    const Sheet& Shown() const { return m_sheet; }
    Sheet InShownOrder() const;

signals:
    void HelpAsked();
    void ExportAsked();
    void CopyTextAsked();
    void CopyRangeAsked();

private:
    QLayout* MakeHead();
    QWidget* MakeProgress();
    QWidget* MakeButtons();
    void Look();
    void Show(const ModelsState& state);
    void Stop();
    void OfferHouse();
    void EnterHouse();

    ModelsContext m_context;
    std::function<void(const std::vector<EntryText>&)> m_enter;
    Sheet m_sheet;
    SheetModel m_model;
    QTimer m_poll;
    QElapsedTimer m_since;
    QLabel* m_sentence = nullptr;
    PairChoice* m_options = nullptr;
    QWidget* m_progress = nullptr;
    QProgressBar* m_bar = nullptr;
    SheetView* m_table = nullptr;
    QLabel* m_legend = nullptr;
    QPushButton* m_use = nullptr;
    std::vector<QPushButton*> m_needsList; ///< buttons that work on a list
};

} // namespace Ledgrove
