#include "ui/windows/insight/SettingsPanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/windows/EntryField.h"
#include "ui/windows/Identify.h"
#include "ui/windows/insight/AnswerText.h"
#include "ui/windows/insight/FlowLayout.h"

namespace Ledgrove {

using Module1::EntryOutcome;

namespace {

constexpr int fieldLetters = 12;
constexpr int gap = 10;

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QWidget* MakeBox() {
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    return box;
}

/// Has its place also while it is hidden.
QLabel* MakeMark() {
    auto* mark = new QLabel("(not kept)");
    QSizePolicy policy = mark->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    mark->setSizePolicy(policy);
    return mark;
}

/// Keeps the room of a line also while it is empty. A long word does not widen the window.
QLabel* MakeComplaint() {
    QLabel* complaint = MakeWrappedText("Complaint");
    complaint->setMinimumHeight(complaint->fontMetrics().height());
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    complaint->setSizePolicy(policy);
    return complaint;
}

} // namespace

SettingsPanel::SettingsPanel(TryText tryText, QWidget* parent)
    : QWidget(parent)
    , m_try(std::move(tryText))
    , m_complaint(MakeComplaint()) {
    setObjectName("SettingsPanel");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(gap / 2);
    auto* fields = new QWidget;
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    fields->setSizePolicy(policy);
    m_flow = new FlowLayout(fields);
    m_flow->setContentsMargins(0, 0, 0, 0);
    m_flow->setSpacing(gap);
    column->addWidget(fields);
    column->addWidget(m_complaint);
}

void SettingsPanel::Show(const std::vector<SettingField>& fields) {
    const bool isSame =
        std::equal(fields.begin(), fields.end(), m_rows.begin(), m_rows.end(),
                   [](const SettingField& field, const Row& row) {
                       return field.Key == row.Shown.Key && field.Slider.size() == row.Shown.Slider.size();
                   });
    if (!isSame)
        Build(fields);
    for (std::size_t at = 0; at < fields.size(); ++at)
        Refresh(m_rows[static_cast<qsizetype>(at)], fields[at]);
    OfferButtons();
    setVisible(!fields.empty());
}

void SettingsPanel::FollowInTabOrder(QWidget& before) const {
    QWidget* last = &before;
    for (QWidget* stop : m_stops) {
        setTabOrder(last, stop);
        last = stop;
    }
}

bool SettingsPanel::TakeTyped() {
    for (Row& row : m_rows) {
        if (Take(row))
            continue;
        row.Edit->setFocus(Qt::OtherFocusReason);
        row.Edit->selectAll();
        return false;
    }
    return true;
}

void SettingsPanel::GiveUpTyped() {
    Complain("");
    for (Row& row : m_rows)
        ShowText(*row.Edit, row.Shown.Text);
    OfferButtons();
}

void SettingsPanel::Build(const std::vector<SettingField>& fields) {
    Clear();
    if (fields.empty())
        return;
    for (const SettingField& field : fields)
        AddRow(field);
    AddButtons();
}

void SettingsPanel::Clear() {
    Complain("");
    // A field that is hidden loses the focus.
    for (const Row& row : m_rows)
        row.Edit->Handle({});
    m_rows.clear();
    m_stops.clear();
    m_keep = m_back = nullptr;
    while (QLayoutItem* item = m_flow->takeAt(0)) {
        // Later, because one of them may be at work now.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
}

void SettingsPanel::AddRow(const SettingField& field) {
    const qsizetype at = m_rows.size();
    Row& row = m_rows.emplaceBack();
    row.Shown = field;
    QWidget* box = MakeBox();
    auto* caption = new QLabel(Words(field.Caption));
    row.Edit = new EntryField;
    caption->setBuddy(row.Edit);
    Identify(*row.Edit, Words(field.Key), Words(field.Name));
    row.Edit->setAlignment(Qt::AlignRight);
    row.Edit->setFixedWidth(fontMetrics().averageCharWidth() * fieldLetters);
    ShowText(*row.Edit, field.Text);
    m_stops += row.Edit;
    row.Tried = MakeMark();
    box->layout()->addWidget(caption);
    box->layout()->addWidget(row.Edit);
    box->layout()->addWidget(row.Tried);
    m_flow->addWidget(box);
    HandleEntries(at);
    if (!field.Slider.empty()) {
        AddSlider(at);
        box->layout()->addWidget(row.Slider);
    }
    AddChoices(at);
}

void SettingsPanel::HandleEntries(qsizetype at) {
    EntryField* const edit = m_rows[at].Edit;
    EntryEvents events;
    events.Click = events.GotFocus = [edit] { edit->selectAll(); };
    events.KeyPress = [this, at, edit](KeyCode) {
        const bool isTaken = Take(m_rows[at]);
        edit->selectAll();
        return isTaken ? EntryOutcome::Accepted : EntryOutcome::Refused;
    };
    events.LostFocus = [this, at, edit] {
        if (MayLeave(m_rows[at]) || Take(m_rows[at]))
            return EntryOutcome::Accepted;
        edit->setFocus(Qt::OtherFocusReason);
        edit->selectAll();
        return EntryOutcome::Refused;
    };
    events.Change = [this](const std::string&) {
        m_refused = nullptr;
        OfferButtons();
    };
    edit->Handle(std::move(events));
}

void SettingsPanel::AddSlider(qsizetype at) {
    constexpr int widthInLetters = 30;
    constexpr int page = 10;
    Row& row = m_rows[at];
    row.Slider = new QSlider(Qt::Horizontal);
    Identify(*row.Slider, Words(row.Shown.Key) + "Slider", Words(row.Shown.Name));
    row.Slider->setRange(0, static_cast<int>(row.Shown.Slider.size()) - 1);
    row.Slider->setPageStep(page);
    row.Slider->setMinimumWidth(fontMetrics().averageCharWidth() * widthInLetters / 2);
    row.Slider->setFixedWidth(fontMetrics().averageCharWidth() * widthInLetters);
    m_stops += row.Slider;
    connect(row.Slider, &QSlider::valueChanged, this, [this, at](int place) {
        Try(m_rows[at], m_rows[at].Shown.Slider[static_cast<std::size_t>(place)]);
    });
}

void SettingsPanel::AddChoices(qsizetype at) {
    Row& row = m_rows[at];
    for (const SettingChoice& choice : row.Shown.Choices) {
        auto* button = new QPushButton(Words(choice.Caption));
        button->setObjectName("Choice");
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this,
                [this, at, text = choice.Text] { Try(m_rows[at], text); });
        row.Choices += button;
        m_stops += button;
        m_flow->addWidget(button);
    }
}

void SettingsPanel::AddButtons() {
    m_keep = new QPushButton("&Keep");
    m_keep->setObjectName("bKeep");
    m_keep->setToolTip("Saves these values in Ledgrove.ini");
    m_back = new QPushButton("&Back to Kept");
    m_back->setObjectName("bGoBack");
    m_back->setToolTip("Shows the answer with the values in Ledgrove.ini again");
    for (QPushButton* button : {m_keep, m_back}) {
        button->setAutoDefault(true);
        m_flow->addWidget(button);
        m_stops += button;
    }
    connect(m_keep, &QPushButton::clicked, this, [this] {
        // A screen reader presses the button without moving the focus.
        if (TakeTyped())
            emit KeepAsked();
    });
    connect(m_back, &QPushButton::clicked, this, &SettingsPanel::GoBackAsked);
}

void SettingsPanel::Refresh(Row& row, const SettingField& field) {
    const bool isTyped = IsTyped(row);
    row.Shown = field;
    row.Tried->setVisible(field.IsTried);
    if (row.Slider) {
        const QSignalBlocker nothingTried(row.Slider);
        row.Slider->setValue(field.SliderAt);
        // The value may be beyond the slider's ends.
        row.Slider->setToolTip(Words(field.Text));
        SetSpokenDescription(*row.Slider, Words(field.Text));
    }
    if (!isTyped)
        ShowText(*row.Edit, field.Text);
}

/// What is typed can be kept, which enters it first. A refused text can only be given up or corrected.
void SettingsPanel::OfferButtons() {
    if (!m_keep)
        return;
    const bool isChanged = std::any_of(m_rows.begin(), m_rows.end(),
                                       [this](const Row& row) { return row.Shown.IsTried || IsTyped(row); });
    m_keep->setEnabled(isChanged && !m_refused);
    m_back->setEnabled(isChanged);
}

bool SettingsPanel::IsTyped(const Row& row) const {
    return row.Edit->text() != Words(row.Shown.Text);
}

/// Whether the focus goes to a button that replaces the field's text.
bool SettingsPanel::MayLeave(const Row& row) const {
    QWidget* const next = window()->focusWidget();
    return next == m_back || std::any_of(row.Choices.begin(), row.Choices.end(),
                                         [next](const QPushButton* choice) { return choice == next; });
}

bool SettingsPanel::Take(Row& row) {
    return !IsTyped(row) || Try(row, row.Edit->text().toStdString());
}

bool SettingsPanel::Try(Row& row, const std::string& text) {
    const std::string complaint = m_try(row.Shown.Key, text);
    Complain(complaint);
    if (!complaint.empty()) {
        m_refused = row.Edit;
        SetSpokenDescription(*row.Edit, Words(complaint));
        OfferButtons();
        return false;
    }
    ShowText(*row.Edit, text);
    row.Shown.Text = text;
    emit Tried();
    return true;
}

void SettingsPanel::Complain(const std::string& complaint) {
    m_complaint->setText(Words(complaint));
    m_refused = nullptr;
    for (const Row& row : m_rows)
        SetSpokenDescription(*row.Edit, "");
}

} // namespace Ledgrove
