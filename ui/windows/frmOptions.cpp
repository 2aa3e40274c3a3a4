#include "ui/windows/frmOptions.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/windows/FormParts.h"
#include "ui/windows/HeadedGroup.h"

namespace Ledgrove {

namespace {

void AddFeature(QGridLayout& grid, const char* control, const QString& caption, const QString& humanName) {
    EntryField* field = MakeField(control, humanName);
    field->setAlignment(Qt::AlignLeft);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 48);
    const int row = grid.rowCount();
    grid.addWidget(MakeCaption(caption, field), row, 0);
    grid.addWidget(field, row, 1);
}

} // namespace

frmOptions::frmOptions(OptionsScreen& record, Session& session, Host& outside, QWidget* parent)
    : EntryDialog({"frmOptions", "Options", "ctxOptions"}, session, outside, parent)
    , m_record(record) {
    BuildControls();
    BindFields();
    Present();
}

void frmOptions::accept() {
    if (Succeeded(Module1::ConfirmOptions(m_record, State())))
        EntryDialog::accept();
}

void frmOptions::BuildControls() {
    auto* layout = new QVBoxLayout;
    auto* group = new HeadedGroup(" Additional Features ");
    QGridLayout* grid = MakeGrid(group);
    AddFeature(*grid, "ecFeat1", "Option &1:", "Option 1");
    AddFeature(*grid, "ecFeat2", "Option &2:", "Option 2");
    layout->addWidget(group);
    layout->addStretch();
    LayOut(layout, MakeButtonRow());
}

void frmOptions::BindFields() {
    for (const auto& [name, field] :
         {std::pair{"ecFeat1", &m_record.ecFeat1}, {"ecFeat2", &m_record.ecFeat2}}) {
        EntryEvents events =
            StandardEvents(*field, {FieldFormat::String, FieldFormat::String, Module1::AfterEdit::Nothing});
        // Leaving a field accepts any text; the save reports text that it cannot store.
        events.LostFocus = {};
        // Tab only moves the focus: a commit would set an empty option to the "0" of an empty number field.
        events.KeyPress = [enter = events.KeyPress](KeyCode key) {
            return key == KeyCode::Enter ? enter(key) : Module1::EntryOutcome::Accepted;
        };
        BindField(name, *field, std::move(events));
    }
}

} // namespace Ledgrove
