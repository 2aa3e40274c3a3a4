#pragma once

#include "ui/windows/ChangesWindow.h"
#include "ui/windows/insight/SheetModel.h"

class QBoxLayout;
class QLabel;
class QPushButton;

namespace Ledgrove {

class AnswerPicture;
class ChangesSides;
class SheetView;

/// The window "What changed?": two comparisons on top, the answer as a sentence, and below it on the left the
/// inputs and the figures, on the right the parts of the chosen figure as a picture and a table.
class frmChanges : public ChangesWindow {
    Q_OBJECT

public:
    explicit frmChanges(ChangesContext context);

    void Begin() override;
    void Follow() override;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* MakeSides();
    QWidget* MakeAnswer();
    QWidget* MakeTables();
    QWidget* MakeParts();
    QWidget* MakeButtons();
    void AddTable(QBoxLayout& column, SheetView& table, QLabel& caption, const char* control);
    void AskFile(bool isFrom);
    ChangesAsk Ask() const;
    void ShowAnswer();
    void ShowTables(const ChangesAnswer& answer);
    void ShowParts(const ChangesAnswer& answer);
    void ChooseFigure();
    void OfferCommands(const ChangesAnswer& answer);
    void Copy(const std::function<std::string(const Sheet&)>& form);
    void SavePicture();
    void FitTables();

    ChangesContext m_context;
    ChangesAnswer m_answer; ///< the shown one
    std::string m_figure;   ///< whose parts are asked for
    SheetModel m_inputModel;
    SheetModel m_figureModel;
    SheetModel m_partModel;
    ChangesSides* m_sides = nullptr;
    QLabel* m_sentence = nullptr;
    QWidget* m_tables = nullptr; ///< everything below the sentence
    QBoxLayout* m_columns = nullptr;
    SheetView* m_inputs = nullptr;
    QLabel* m_figuresCaption = nullptr;
    SheetView* m_figures = nullptr;
    QWidget* m_partsSide = nullptr;
    AnswerPicture* m_picture = nullptr;
    QLabel* m_partsSentence = nullptr;
    QLabel* m_partsCaption = nullptr;
    SheetView* m_parts = nullptr;
    QLabel* m_legend = nullptr;
    QPushButton* m_print = nullptr;
    QPushButton* m_copy = nullptr;
    QPushButton* m_save = nullptr;
    bool m_isSized = false;
};

} // namespace Ledgrove
