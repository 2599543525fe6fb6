#pragma once

#include "App/DiagnosticBundle.h"
#include "Base/Worker.h"

#include <QObject>
#include <QQuickItem>
#include <QVariantList>
#include <QtQmlIntegration>

#include <memory>

namespace fendrel {

class AppController;
class Capabilities;
class FileAsking;

/// What this program is: its version, its folders, what it is built on, and a report for when something is wrong.
class AboutController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString extensionVersion READ extensionVersion NOTIFY changed)
    /// The folders: name, path.
    Q_PROPERTY(QVariantList folders READ folders CONSTANT)
    /// What it is built on: name, licence, purpose, and the address of the licence's text, empty where there is none.
    Q_PROPERTY(QVariantList dependencies READ dependencies NOTIFY changed)
    Q_PROPERTY(bool isWriting READ isWriting NOTIFY changed)
    Q_PROPERTY(QString report READ report NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    AboutController(AppController& controller, Capabilities& capabilities, FileAsking& files);

    QString version() const { return QStringLiteral(FENDREL_VERSION); }
    const QString& extensionVersion() const { return m_extensionVersion; } ///< empty while it is not known
    QVariantList folders() const;
    const QVariantList& dependencies() const { return m_dependencies; }
    bool isWriting() const { return m_isWriting; }
    const QString& report() const { return m_report; }   ///< path of the last report; empty: none was written
    const QString& problem() const { return m_problem; } ///< why the last one could not be written

    Q_INVOKABLE void openFolder(const QString& path);
    Q_INVOKABLE void openAddress(const QString& address);
    /// To a file that the user is asked for; where that cannot be, into the folder of documents, which is shown then.
    Q_INVOKABLE void writeReportFor(QQuickItem* button);

Q_SIGNALS:
    void changed();

private:
    void writeReport(const QString& path, bool reveals);

    AppController& m_controller;
    Capabilities& m_capabilities;
    FileAsking& m_files;
    QString m_extensionVersion;
    QVariantList m_dependencies;
    bool m_isWriting = false;
    QString m_report;
    QString m_problem;
    DiagnosticBundle m_bundle;
    Worker m_worker; ///< the last: nothing it posts arrives once it has ended
};

} // namespace fendrel
