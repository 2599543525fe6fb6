#pragma once

#include "Ports/WindowPreviews.h"

#include <QObject>
#include <QtQmlIntegration>

namespace fendrel {

/// Where the views' pictures of windows come from.
class PreviewSource : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isAvailable READ isAvailable NOTIFY availabilityChanged)

public:
    explicit PreviewSource(WindowPreviews& previews) : m_previews(previews) {
        previews.onAvailabilityChanged = [this] { Q_EMIT availabilityChanged(); };
    }
    ~PreviewSource() override {
        m_previews.onAvailabilityChanged = [] {};
    }

    bool isAvailable() const { return m_previews.isAvailable(); }
    Handle follow(WindowID window, QSize size, WindowPreviews::Picture onPicture) {
        return m_previews.follow(window, size, std::move(onPicture));
    }

Q_SIGNALS:
    void availabilityChanged();

private:
    WindowPreviews& m_previews;
};

} // namespace fendrel
