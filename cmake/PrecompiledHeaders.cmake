# SPDX-License-Identifier: Apache-2.0
# What nearly every file of a large target includes, parsed once for all of them:
# precompile_headers(<target> [<header>...]). With a few files it costs more than it spares.
function(precompile_headers target)
    target_precompile_headers(${target} PRIVATE
        <QDateTime> <QHash> <QList> <QSet> <QString> <QUrl>
        <algorithm> <array> <chrono> <expected> <functional> <optional> <ranges> <utility>
        ${ARGN})
endfunction()
