#include "ui/windows/EntryDialog.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <tuple>
#include <utility>

#include "ui/windows/FormGuard.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/ScrolledForm.h"
#include "ui/windows/WindowPlace.h"

namespace Ledgrove {

EntryDialog::EntryDialog(const DialogIdentity& identity, Session& session, Host& outside, QWidget* parent)
    : QDialog(parent)
    , m_shows([this] { Refresh(); })
    , m_host(outside, [this] { Refresh(); })
    , m_focus(*this)
    , m_context{session, m_host, m_focus}
    , m_help(*this, session, m_host)
    , m_helpAnchor(identity.HelpAnchor) {
    setObjectName(identity.Name);
    setWindowTitle(identity.Title);
    setModal(true);
    new FormGuard(*this);
}

void EntryDialog::Refresh() {
    for (EntryField* field : findChildren<EntryField*>())
        field->Refresh();
}

void EntryDialog::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_F1:
        return m_help.Open(m_helpAnchor);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return TakeEnter();
    default:
        QDialog::keyPressEvent(event);
    }
}

void EntryDialog::LayOut(QLayout* form, QLayout* buttons) {
    form->setContentsMargins(0, 0, 0, 0);
    auto* page = new QWidget;
    page->setLayout(form);
    auto* area = new ScrolledForm(page);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(area, 1);
    layout->addLayout(buttons);
    area->WidenTo(buttons->sizeHint().width());
}

QLayout* EntryDialog::MakeButtonRow() {
    const std::tuple<const char*, const char*, void (EntryDialog::*)()> buttons[] = {
        {"bOK", "&OK", &EntryDialog::accept},
        {"bCancel", "&Cancel", &EntryDialog::reject},
        {"bHelp", "&Help", &EntryDialog::SendHelpKey}};
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addStretch();
    for (const auto& [name, caption, action] : buttons) {
        QPushButton* button = MakeButton(name, caption);
        OnClick(*button, [this, act = action] { (this->*act)(); });
        row->addWidget(button);
    }
    return row;
}

void EntryDialog::OnClick(QPushButton& button, std::function<void()> action) {
    connect(&button, &QPushButton::clicked, this, std::move(action));
}

void EntryDialog::BindField(const QString& control, Field& field, const EntryTypes& types) {
    BindField(control, field, StandardEvents(field, types));
}

void EntryDialog::BindField(const QString& control, Field& field, EntryEvents events) {
    findChild<EntryField*>(control)->Bind(field, std::move(events));
}

EntryEvents EntryDialog::StandardEvents(Field& field, const EntryTypes& types) {
    return StandardEntryEvents(m_context, field, types, m_shows);
}

void EntryDialog::Present() {
    Refresh();
    m_focus.NextField();
    CentreOnScreen(*this);
}

bool EntryDialog::Succeeded(const std::optional<SettingsFault>& fault) {
    if (fault)
        m_host.ShowMessage({ApplicationTitle, Sentence(*fault), MessageIcon::Exclamation});
    return !fault;
}

void EntryDialog::TakeEnter() {
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
    else if (!qobject_cast<QLineEdit*>(focusWidget()))
        m_focus.NextField();
}

void EntryDialog::SendHelpKey() {
    QCoreApplication::postEvent(this, new QKeyEvent(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier));
}

} // namespace Ledgrove
