#pragma once

#include <QString>
#include <QStringList>

namespace Ledgrove {

/// The comparisons opened or saved last, newest first. They are stored in a small file in the user's
/// configuration folder, not in Ledgrove.ini, which only the dialogs write.
class RecentFiles {
public:
    static constexpr qsizetype Most = 8;

    /// `store` is the file with the names. If a name cannot be stored, the list loses it when the program
    /// ends.
    explicit RecentFiles(QString store);

    QStringList Names() const;
    void Add(const QString& file);
    void Remove(const QString& file);
    void Clear();

private:
    void Keep(const QStringList& names);

    QString m_store;
};

/// The store for this user.
QString RecentFilesStore();

} // namespace Ledgrove
