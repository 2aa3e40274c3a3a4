#pragma once

#include <QTimer>

#include "ui/windows/InsightWindow.h"
#include "ui/windows/insight/SheetModel.h"

class QLabel;
class QListWidget;
class QPushButton;
class QStackedWidget;

namespace Ledgrove {

class AnswerPage;
class AnswerPicture;
class ChainView;
class ModelsView;
class SettingsPanel;
class SheetView;
class YearSwitch;

/// The Insight window: on the left the questions, on the right the answer as a sentence, a picture and a
/// table.
class frmInsight : public InsightWindow {
    Q_OBJECT

public:
    explicit frmInsight(InsightContext context);

    void Ask(InsightQuestion question) override;
    void Explain(const std::string& figure) override;
    void Follow() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* MakeQuestions();
    QWidget* MakeAnswer();
    void ConnectAnswer();
    QWidget* MakeModels();
    void Choose(int row);
    QWidget* MakeSettings();
    void ChooseYear(int year);
    QWidget* MakeButtons();
    void AddKeys(const char* keys, const std::function<void()>& act);
    QPushButton* AddButton(QLayout& row, const char* control, const QString& caption);
    void ShowAnswer();
    void MarkSentence();
    void OfferEntry();
    void EnterCell();
    void ChooseMapCell(std::size_t column, std::size_t row);
    void CopyAnswer();
    void CopyText(const Sheet& sheet);
    void CopyRange(const Sheet& sheet);
    void Print(const std::vector<InsightQuestion>& questions);
    void ExportTable(const Sheet& sheet);
    void SavePicture();

    InsightContext m_context;
    InsightQuestion m_question = InsightQuestion::HowFar;
    std::string m_figure; ///< that WhereFrom is about
    int m_row = 0;        ///< of the list of questions
    int m_year = 0;       ///< whose months YearByYear lists; 0 for all years
    Sheet m_sheet;        ///< of the shown answer, also while its table is hidden
    SheetModel m_model;
    QTimer m_highlight;
    QListWidget* m_questions = nullptr;
    QStackedWidget* m_pages = nullptr;
    ModelsView* m_models = nullptr;
    AnswerPage* m_answer = nullptr;
    QLabel* m_sentence = nullptr;
    SettingsPanel* m_settings = nullptr;
    AnswerPicture* m_picture = nullptr;
    QLabel* m_cell = nullptr;
    YearSwitch* m_years = nullptr;
    SheetView* m_table = nullptr;
    ChainView* m_chain = nullptr;
    QWidget* m_space = nullptr; ///< the room below an answer without a table
    QLabel* m_legend = nullptr;
    QLabel* m_note = nullptr;
    QPushButton* m_enter = nullptr;
    QPushButton* m_print = nullptr;
    QPushButton* m_copy = nullptr;
    QPushButton* m_export = nullptr;
    QPushButton* m_save = nullptr;
    bool m_isSized = false;
};

} // namespace Ledgrove
