#pragma once

#include <QObject>
#include <QString>

class QWindow;

namespace fendrel {

class WindowTitles;

/// The keyboard, lent to a window that is never the active one: the application in front stays in front meanwhile. It
/// goes back when another application comes there.
class BorrowedKeyboard : public QObject {
    Q_OBJECT
public:
    BorrowedKeyboard(QWindow& window, WindowTitles& titles);

    bool isHere() const { return m_isHere; }
    bool take(); ///< false when the system gives it to nobody now
    void release();
    void resume(); ///< after a menu of the window had it

Q_SIGNALS:
    void changed();

private:
    bool grab();
    QString front() const;

    QWindow& m_window;
    WindowTitles& m_titles;
    bool m_isHere = false;
    QString m_frontAtStart; ///< bundle identifier
};

} // namespace fendrel
