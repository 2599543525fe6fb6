#pragma once

#include <QQuickView>

#include <functional>

namespace fendrel {

/// An ordinary window with a QML view in it, in the middle of what panels leave of the main screen. It stays there when
/// they change, until the user has put it elsewhere. Without a size it is as large as its view wants to be.
class Dialog : public QQuickView {
    Q_OBJECT
public:
    Dialog(QQmlEngine& engine, const QString& title, const QString& view, const QVariantMap& properties, QSize size);

    void present();                 ///< shows it, in front
    void showOver(QWindow* parent); ///< shows it, in front of a window that has to wait for it

    std::function<void()> onClosed = [] {}; ///< the user closed the window; it may be destroyed here, later

protected:
    void closeEvent(QCloseEvent* event) override;
    /// Escape and Ctrl+W close it, where its view has no other use for them.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void place();
    bool isWhereItWasPut() const;

    QSize m_wanted;
    QRect m_placed; ///< as it was put last
};

} // namespace fendrel
