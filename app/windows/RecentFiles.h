#pragma once

#include <QString>
#include <QStringList>

namespace Ledgrove {

/// The comparisons opened or saved last, newest first. They are kept in a small file among the user's own
/// configuration, not in Ledgrove.ini, which only the dialogs write.
class RecentFiles {
public:
    static constexpr qsizetype Most = 8;

    /// `store` is the file in which the names are kept; a name that cannot be kept is forgotten at the end.
    explicit RecentFiles(QString store);

    QStringList Names() const;
    void Add(const QString& file);
    void Remove(const QString& file);
    void Clear();

private:
    void Keep(const QStringList& names);

    QString m_store;
};

/// Where the names are kept for this user.
QString RecentFilesStore();

} // namespace Ledgrove
