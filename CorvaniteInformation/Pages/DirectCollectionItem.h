#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// An outside service that the pipeline collects from directly.
struct DirectCollectionItem
{
    Q_GADGET
    QML_VALUE_TYPE(directCollectionItem)

    Q_PROPERTY(QString tag MEMBER tag CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)

public:
    QString tag;
    QString text;

    friend bool operator==(const DirectCollectionItem&, const DirectCollectionItem&) = default;
};
