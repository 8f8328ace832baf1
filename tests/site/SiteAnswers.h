// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "LoopbackSite.h"
#include "NetworkSiteClient.h"

#include <QTest>

#include <memory>
#include <optional>

/// Asking a loopback site over the network, and what may come of it.
namespace SiteAnswers {

constexpr qsizetype byteLimit = 1'500'000;
/// Limits that no request meets unless its test names them.
constexpr NetworkSiteClient::Limits patient{.silence = std::chrono::hours(1),
                                            .overall = std::chrono::hours(1)};

inline const SiteClient::Answer okAnswer = SiteReply{"{}", 200};
inline const SiteClient::Answer transportError = std::unexpected(SiteError::Transport);
inline const SiteClient::Answer tooLarge = std::unexpected(SiteError::TooLarge);

std::unique_ptr<NetworkSiteClient> clientOf(const LoopbackSite& site,
                                            NetworkSiteClient::Limits limits = patient);

/// What a client of its own gets for "/document".
SiteClient::Answer answerOf(const LoopbackSite& site, NetworkSiteClient::Limits limits = patient);

/// Puts the answer there once it has come.
/// @param kept outlives the request
QCoro::Task<> keepAnswer(QCoro::Task<SiteClient::Answer> request,
                         std::optional<SiteClient::Answer>& kept);

} // namespace SiteAnswers

template <>
char* QTest::toString(const SiteClient::Answer& answer);
