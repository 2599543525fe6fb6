#pragma once

#include <QQuickImageProvider>

namespace fendrel {

/// The symbols of modes and controls, in the colour that is asked for: "NAME/aarrggbb", to be installed as "symbol".
class SymbolImages : public QQuickImageProvider {
public:
    SymbolImages() : QQuickImageProvider(Image) {}
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

    static bool exists(const QString& name);
};

} // namespace fendrel
