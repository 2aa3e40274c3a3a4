#pragma once

#include <QList>
#include <QWidget>
#include <functional>
#include <string>

#include "ui/SettingFields.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;

namespace Ledgrove {

/// The fields of the settings that a question uses. What is entered is tried at once; Keep saves it.
class SettingsPanel : public QWidget {
    Q_OBJECT

public:
    using TryText = std::function<std::string(std::string_view key, const std::string& text)>;

    /// `tryText` returns a sentence about a text that cannot be used, else "".
    explicit SettingsPanel(TryText tryText, QWidget* parent = nullptr);

    /// Shows these fields; hidden without any. A refused text stays until it is corrected or other fields
    /// are shown.
    void Show(const std::vector<SettingField>& fields);

    /// Puts the panel's controls after `before` into the order of Tab, because they come and go.
    void FollowInTabOrder(QWidget& before) const;

    /// Shows the values in force, also in place of refused texts.
    void GiveUpRefused();

signals:
    /// A value was tried: the answer changes.
    void Tried();
    void KeepAsked();
    void GoBackAsked();

private:
    struct Row {
        std::string Key;
        QLineEdit* Edit = nullptr;
        QLabel* Complaint = nullptr;
        QSlider* Slider = nullptr; ///< nullptr without one
        QLabel* Tried = nullptr;
        SettingField Shown;
    };

    void Build(const std::vector<SettingField>& fields);
    void AddRow(const SettingField& field);
    void AddSlider(Row& row);
    void AddChoices(const SettingField& field, qsizetype at);
    void AddButtons();
    void Refresh(Row& row, const SettingField& field);
    void Commit(qsizetype at);
    void Try(qsizetype at, const std::string& text);

    TryText m_try;
    QList<Row> m_rows;
    QList<QWidget*> m_stops; ///< of Tab
    QPushButton* m_keep = nullptr;
    QPushButton* m_back = nullptr;
};

} // namespace Ledgrove
