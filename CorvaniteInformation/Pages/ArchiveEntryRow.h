#pragma once

#include "InformationSignal.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One featured signal of a day in the archive's index.
struct ArchiveEntryRow
{
    Q_GADGET
    QML_VALUE_TYPE(archiveEntryRow)

    Q_PROPERTY(QString number MEMBER number CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString lane MEMBER lane CONSTANT FINAL)

public:
    /// @param number the running number, from 1
    static ArchiveEntryRow from(const InformationSignal& signal, qsizetype number);

    /// At least two digits.
    QString number;
    QString title;
    /// The lane's name with the dot that joins it to the title.
    QString lane;

    friend bool operator==(const ArchiveEntryRow&, const ArchiveEntryRow&) = default;
};
