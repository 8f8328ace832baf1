// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "LabelledTextRow.h"
#include "SourceEntryRow.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// The sources surface: where every card comes from. It depends on the compiled-in registry alone.
class SourcesPage : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString eyebrow READ eyebrow CONSTANT FINAL)
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString lead READ lead CONSTANT FINAL)

    Q_PROPERTY(QString registryEyebrow READ registryEyebrow CONSTANT FINAL)
    Q_PROPERTY(QString registrySubtitle READ registrySubtitle CONSTANT FINAL)
    Q_PROPERTY(QString registryNote READ registryNote CONSTANT FINAL)
    Q_PROPERTY(QList<SourceEntryRow> registry READ registry CONSTANT FINAL)

    Q_PROPERTY(QString directEyebrow READ directEyebrow CONSTANT FINAL)
    Q_PROPERTY(QString directSubtitle READ directSubtitle CONSTANT FINAL)
    Q_PROPERTY(QString directText READ directText CONSTANT FINAL)
    Q_PROPERTY(QList<LabelledTextRow> directItems READ directItems CONSTANT FINAL)

    Q_PROPERTY(QString contractEyebrow READ contractEyebrow CONSTANT FINAL)
    Q_PROPERTY(QString contractSubtitle READ contractSubtitle CONSTANT FINAL)
    Q_PROPERTY(QList<LabelledTextRow> contractRules READ contractRules CONSTANT FINAL)

    Q_PROPERTY(QString governanceHeadline READ governanceHeadline CONSTANT FINAL)
    Q_PROPERTY(QString governanceText READ governanceText CONSTANT FINAL)

public:
    /// Shows the compiled-in registry.
    explicit SourcesPage(QObject* parent = nullptr);
    explicit SourcesPage(const QList<InformationSourceEntry>& registry, QObject* parent = nullptr);

    static QString eyebrow();
    static QString title();
    static QString lead();

    static QString registryEyebrow();
    const QString& registrySubtitle() const { return m_registrySubtitle; }
    static QString registryNote();
    const QList<SourceEntryRow>& registry() const { return m_registry; }

    static QString directEyebrow();
    static QString directSubtitle();
    static QString directText();
    static QList<LabelledTextRow> directItems();

    static QString contractEyebrow();
    static QString contractSubtitle();
    static QList<LabelledTextRow> contractRules();

    static QString governanceHeadline();
    static QString governanceText();

private:
    QString m_registrySubtitle;
    QList<SourceEntryRow> m_registry;
};
