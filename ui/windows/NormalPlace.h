#pragma once

#include <QObject>
#include <QRect>
#include <QTimer>

class QWidget;

namespace Ledgrove {

/// Puts a window back to its earlier place and size when it is no longer maximized, however it was maximized
/// and restored. Most window managers do so themselves, and then this changes nothing. They report a new size
/// before or after the new state, so only a size that stays for a moment counts.
class NormalPlace : public QObject {
    Q_OBJECT

public:
    /// Belongs to `window`.
    explicit NormalPlace(QWidget& window);

    /// Call this before the program itself maximizes the window, which may have been moved just now.
    void Keep();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsNormal() const;
    void FollowState();
    void TakeSettledPlace();

    QWidget& m_window;
    QRect m_place; ///< without the frame
    QTimer m_settled;
    bool m_wasMaximized = false;
    bool m_returns = false; ///< it is no longer maximized, and its place has not settled
};

} // namespace Ledgrove
