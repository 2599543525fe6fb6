#pragma once

#include "App/Alert.h"

#include <QCoreApplication>
#include <QDateTime>

#include <functional>
#include <optional>

namespace fendrel {

class SettingsStore;
class Shell;

/// Offers to send the report of the last crash, each report once.
class Feedback {
    Q_DECLARE_TR_FUNCTIONS(fendrel::Feedback)
public:
    Feedback(SettingsStore& settings, Shell& shell, QString crashFolder);

    std::function<void(const Alert&)> showAlert = [](const Alert&) {};

    void offerCrashReport();

private:
    struct Report {
        QString path;
        QDateTime date;
    };
    std::optional<Report> newestReport() const;
    void send(const QString& path);

    SettingsStore& m_settings;
    Shell& m_shell;
    QString m_crashFolder;
};

} // namespace fendrel
