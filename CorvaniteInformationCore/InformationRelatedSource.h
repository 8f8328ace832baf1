#pragma once

#include <QString>

/// A further link of a card.
struct InformationRelatedSource
{
    QString label;
    QString url;

    friend bool operator==(const InformationRelatedSource&,
                           const InformationRelatedSource&) = default;
};
