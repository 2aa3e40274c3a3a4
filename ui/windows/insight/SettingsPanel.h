#pragma once

#include <QList>
#include <QWidget>
#include <functional>
#include <string>

#include "ui/SettingFields.h"

class QLabel;
class QPushButton;
class QSlider;

namespace Ledgrove {

class EntryField;
class FlowLayout;

/// The fields of the settings that a question uses. What is entered is tried at once; Keep saves it. Nothing
/// moves while one types. As in the main window, a field keeps the focus while it refuses its text; only
/// Back to Kept and a button that fills in the field take the focus away.
class SettingsPanel : public QWidget {
    Q_OBJECT

public:
    using TryText = std::function<std::string(std::string_view key, const std::string& text)>;

    /// `tryText` returns a sentence about a text that cannot be used, else "".
    explicit SettingsPanel(TryText tryText, QWidget* parent = nullptr);

    /// Shows these fields; hidden without any. A text that is being typed or is refused stays while the same
    /// fields are shown.
    void Show(const std::vector<SettingField>& fields);

    /// Puts the panel's controls after `before` into the order of Tab, because they come and go.
    void FollowInTabOrder(QWidget& before) const;

    /// Tries what is typed and not entered yet. If that is refused, says so, moves the focus to the field and
    /// returns false.
    bool TakeTyped();

    /// Shows the values in force, also in place of typed and refused texts.
    void GiveUpTyped();

signals:
    /// A value was tried: the answer changes.
    void Tried();
    /// Everything typed has been tried.
    void KeepAsked();
    void GoBackAsked();

private:
    struct Row {
        EntryField* Edit = nullptr;
        QSlider* Slider = nullptr; ///< nullptr without one
        QLabel* Tried = nullptr;
        QList<QPushButton*> Choices;
        SettingField Shown;
    };

    void Build(const std::vector<SettingField>& fields);
    void Clear();
    void AddRow(const SettingField& field);
    void HandleEntries(qsizetype at);
    void AddSlider(qsizetype at);
    void AddChoices(qsizetype at);
    void AddButtons();
    void Refresh(Row& row, const SettingField& field);
    void OfferButtons();
    bool IsTyped(const Row& row) const;
    bool MayLeave(const Row& row) const;
    bool Take(Row& row);
    bool Try(Row& row, const std::string& text);
    void Complain(const std::string& complaint);

    TryText m_try;
    FlowLayout* m_flow;
    QLabel* m_complaint;
    QList<Row> m_rows;
    QList<QWidget*> m_stops; ///< of Tab
    QPushButton* m_keep = nullptr;
    QPushButton* m_back = nullptr;
    const QWidget* m_refused = nullptr; ///< whose text was refused and is not changed since
};

} // namespace Ledgrove
