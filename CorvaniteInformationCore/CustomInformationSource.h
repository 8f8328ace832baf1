#pragma once

#include <QString>
#include <QUuid>

#include <chrono>

/// Something the reader handed in.
struct CustomInformationSource
{
    QUuid id;
    /// The normalised hand-in.
    QString input;
    std::chrono::sys_seconds createdAt;

    friend bool operator==(const CustomInformationSource&,
                           const CustomInformationSource&) = default;
};
