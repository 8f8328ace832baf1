#pragma once

/// The documents of an edition.
enum class DocumentKind { Pack, RetiredList, AppVersion, Registry };
