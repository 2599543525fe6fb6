#pragma once

#include <QQuickImageProvider>

namespace fendrel {

/// The status icon: "<symbol>/<aarrggbb>/<focus|rest>" is the symbol on a plate of that tint, which can be told from
/// light and from dark panels; during focus with a dot.
class TrayImages : public QQuickImageProvider {
public:
    TrayImages() : QQuickImageProvider(Image) {}
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace fendrel
