// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "RelatedSourceRow.h"
#include "TimelineNodeRow.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One place of a thread's column, which stands between the main points and the reader's note.
struct ThreadRow
{
    Q_GADGET
    QML_VALUE_TYPE(threadRow)

    Q_PROPERTY(bool isTimeline READ isTimeline CONSTANT FINAL)
    Q_PROPERTY(bool isOriginal READ isOriginal CONSTANT FINAL)
    Q_PROPERTY(bool isSources READ isSources CONSTANT FINAL)
    Q_PROPERTY(bool first MEMBER first CONSTANT FINAL)
    Q_PROPERTY(QList<TimelineNodeRow> timeline MEMBER timeline CONSTANT FINAL)
    Q_PROPERTY(QList<RelatedSourceRow> sources MEMBER sources CONSTANT FINAL)

public:
    enum class Kind {
        /// A slice of the timeline.
        Timeline,
        /// The way to the original, where that has an address to open.
        Original,
        /// A slice of the further sources.
        Sources
    };

    /// Begins with a slice of the timeline.
    static QList<ThreadRow> columnOf(const InformationSignal& signal);

    Kind kind = Kind::Timeline;
    /// The first of its kind.
    bool first = true;
    /// With `Kind::Timeline`.
    QList<TimelineNodeRow> timeline;
    /// With `Kind::Sources`.
    QList<RelatedSourceRow> sources;

    bool isTimeline() const { return kind == Kind::Timeline; }
    bool isOriginal() const { return kind == Kind::Original; }
    bool isSources() const { return kind == Kind::Sources; }

    QString key() const { return QString::number(static_cast<int>(kind)); }

    friend bool operator==(const ThreadRow&, const ThreadRow&) = default;
};
