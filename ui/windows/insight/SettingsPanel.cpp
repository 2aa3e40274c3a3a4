#include "ui/windows/insight/SettingsPanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>
#include <utility>

#include "ui/windows/Identify.h"
#include "ui/windows/insight/FlowLayout.h"

namespace Ledgrove {

namespace {

constexpr int fieldLetters = 12;
constexpr int complaintLetters = 40; ///< of a line

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

} // namespace

SettingsPanel::SettingsPanel(TryText tryText, QWidget* parent)
    : QWidget(parent)
    , m_try(std::move(tryText)) {
    setObjectName("SettingsPanel");
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    auto* flow = new FlowLayout(this);
    flow->setContentsMargins(0, 0, 0, 0);
    flow->setSpacing(10);
}

void SettingsPanel::Show(const std::vector<SettingField>& fields) {
    const bool isSame =
        std::equal(fields.begin(), fields.end(), m_rows.begin(), m_rows.end(),
                   [](const SettingField& field, const Row& row) {
                       return field.Key == row.Key && field.Slider.size() == row.Shown.Slider.size();
                   });
    if (!isSame)
        Build(fields);
    for (std::size_t at = 0; at < fields.size(); ++at)
        Refresh(m_rows[static_cast<qsizetype>(at)], fields[at]);
    const bool isTried =
        std::any_of(fields.begin(), fields.end(), [](const SettingField& field) { return field.IsTried; });
    if (!fields.empty()) {
        m_keep->setEnabled(isTried);
        m_back->setEnabled(isTried);
    }
    setVisible(!fields.empty());
}

void SettingsPanel::FollowInTabOrder(QWidget& before) const {
    QWidget* last = &before;
    for (QWidget* stop : m_stops) {
        setTabOrder(last, stop);
        last = stop;
    }
}

void SettingsPanel::GiveUpRefused() {
    for (Row& row : m_rows) {
        row.Complaint->clear();
        row.Complaint->hide();
        row.Edit->setText(Words(row.Shown.Text));
    }
}

void SettingsPanel::Build(const std::vector<SettingField>& fields) {
    m_rows.clear();
    m_stops.clear();
    while (QLayoutItem* item = layout()->takeAt(0)) {
        // Later, because one of them may be at work now.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    if (fields.empty())
        return;
    for (const SettingField& field : fields)
        AddRow(field);
    AddButtons();
}

void SettingsPanel::AddRow(const SettingField& field) {
    const qsizetype at = m_rows.size();
    Row& row = m_rows.emplaceBack();
    row.Key = field.Key;
    QWidget* box = MakeBox();
    auto* caption = new QLabel(Words(field.Caption));
    row.Edit = new QLineEdit;
    caption->setBuddy(row.Edit);
    Identify(*row.Edit, Words(field.Key), Words(field.Name));
    row.Edit->setAlignment(Qt::AlignRight);
    m_stops += row.Edit;
    row.Edit->setFixedWidth(fontMetrics().averageCharWidth() * fieldLetters);
    row.Tried = new QLabel("(not kept)");
    box->layout()->addWidget(caption);
    box->layout()->addWidget(row.Edit);
    box->layout()->addWidget(row.Tried);
    if (!field.Slider.empty()) {
        row.Shown = field;
        AddSlider(row);
        box->layout()->addWidget(row.Slider);
        m_stops += row.Slider;
        connect(row.Slider, &QSlider::valueChanged, this,
                [this, at](int place) { Try(at, m_rows[at].Shown.Slider[static_cast<std::size_t>(place)]); });
    }
    layout()->addWidget(box);
    row.Complaint = new QLabel;
    row.Complaint->setObjectName("Complaint");
    row.Complaint->setWordWrap(true);
    row.Complaint->setMinimumWidth(fontMetrics().averageCharWidth() * complaintLetters);
    row.Complaint->setTextFormat(Qt::PlainText);
    row.Complaint->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row.Complaint->hide();
    layout()->addWidget(row.Complaint);
    // A click on Keep takes what is being typed.
    connect(row.Edit, &QLineEdit::textEdited, this, [this] { m_keep->setEnabled(true); });
    connect(row.Edit, &QLineEdit::editingFinished, this, [this, at] { Commit(at); });
    AddChoices(field, at);
}

void SettingsPanel::AddSlider(Row& row) {
    constexpr int widthInLetters = 30;
    constexpr int page = 10;
    row.Slider = new QSlider(Qt::Horizontal);
    Identify(*row.Slider, Words(row.Key) + "Slider", Words(row.Shown.Name));
    row.Slider->setRange(0, static_cast<int>(row.Shown.Slider.size()) - 1);
    row.Slider->setPageStep(page);
    row.Slider->setMinimumWidth(fontMetrics().averageCharWidth() * widthInLetters / 2);
    row.Slider->setFixedWidth(fontMetrics().averageCharWidth() * widthInLetters);
}

void SettingsPanel::AddChoices(const SettingField& field, qsizetype at) {
    for (const SettingChoice& choice : field.Choices) {
        auto* button = new QPushButton(Words(choice.Caption));
        button->setObjectName("Choice");
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this, [this, at, text = choice.Text] { Try(at, text); });
        m_stops += button;
        layout()->addWidget(button);
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
        layout()->addWidget(button);
        m_stops += button;
    }
    connect(m_keep, &QPushButton::clicked, this, &SettingsPanel::KeepAsked);
    connect(m_back, &QPushButton::clicked, this, &SettingsPanel::GoBackAsked);
}

void SettingsPanel::Refresh(Row& row, const SettingField& field) {
    row.Shown = field;
    row.Tried->setVisible(field.IsTried);
    if (row.Slider) {
        const QSignalBlocker nothingTried(row.Slider);
        row.Slider->setValue(field.SliderAt);
    }
    const bool isBeingTyped = row.Edit->hasFocus() && row.Edit->isModified();
    if (row.Complaint->text().isEmpty() && !isBeingTyped && row.Edit->text() != Words(field.Text))
        row.Edit->setText(Words(field.Text));
}

void SettingsPanel::Commit(qsizetype at) {
    Row& row = m_rows[at];
    if (row.Edit->isModified())
        Try(at, row.Edit->text().toStdString());
    if (row.Edit->hasFocus())
        row.Edit->selectAll();
}

void SettingsPanel::Try(qsizetype at, const std::string& text) {
    Row& row = m_rows[at];
    const std::string complaint = m_try(row.Key, text);
    row.Complaint->setText(Words(complaint));
    row.Complaint->setVisible(!complaint.empty());
    SetSpokenDescription(*row.Edit, Words(complaint));
    row.Edit->setModified(false);
    if (complaint.empty())
        emit Tried();
}

} // namespace Ledgrove
