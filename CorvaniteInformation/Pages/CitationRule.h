#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// A rule by which sources are cited.
struct CitationRule
{
    Q_GADGET
    QML_VALUE_TYPE(citationRule)

    Q_PROPERTY(QString headline MEMBER headline CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)

public:
    QString headline;
    QString text;

    friend bool operator==(const CitationRule&, const CitationRule&) = default;
};
