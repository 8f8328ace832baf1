// SPDX-License-Identifier: Apache-2.0

#include "PlainText.h"

#include <algorithm>
#include <array>

namespace {

struct NamedCharacter
{
    QLatin1StringView name;
    char16_t character;
};

/// Those that feeds are written with.
constexpr std::array namedCharacters{
    NamedCharacter{QLatin1StringView("amp"), u'&'},
    NamedCharacter{QLatin1StringView("lt"), u'<'},
    NamedCharacter{QLatin1StringView("gt"), u'>'},
    NamedCharacter{QLatin1StringView("quot"), u'"'},
    NamedCharacter{QLatin1StringView("apos"), u'\''},
    NamedCharacter{QLatin1StringView("nbsp"), u'\u00A0'},
    NamedCharacter{QLatin1StringView("ensp"), u'\u2002'},
    NamedCharacter{QLatin1StringView("emsp"), u'\u2003'},
    NamedCharacter{QLatin1StringView("thinsp"), u'\u2009'},
    NamedCharacter{QLatin1StringView("ndash"), u'–'},
    NamedCharacter{QLatin1StringView("mdash"), u'—'},
    NamedCharacter{QLatin1StringView("hellip"), u'…'},
    NamedCharacter{QLatin1StringView("lsquo"), u'‘'},
    NamedCharacter{QLatin1StringView("rsquo"), u'’'},
    NamedCharacter{QLatin1StringView("ldquo"), u'“'},
    NamedCharacter{QLatin1StringView("rdquo"), u'”'},
    NamedCharacter{QLatin1StringView("laquo"), u'«'},
    NamedCharacter{QLatin1StringView("raquo"), u'»'},
    NamedCharacter{QLatin1StringView("middot"), u'·'},
    NamedCharacter{QLatin1StringView("bull"), u'•'},
    NamedCharacter{QLatin1StringView("times"), u'×'},
    NamedCharacter{QLatin1StringView("divide"), u'÷'},
    NamedCharacter{QLatin1StringView("deg"), u'°'},
    NamedCharacter{QLatin1StringView("plusmn"), u'±'},
    NamedCharacter{QLatin1StringView("micro"), u'µ'},
    NamedCharacter{QLatin1StringView("copy"), u'©'},
    NamedCharacter{QLatin1StringView("reg"), u'®'},
    NamedCharacter{QLatin1StringView("trade"), u'™'},
    NamedCharacter{QLatin1StringView("cent"), u'¢'},
    NamedCharacter{QLatin1StringView("pound"), u'£'},
    NamedCharacter{QLatin1StringView("yen"), u'¥'},
    NamedCharacter{QLatin1StringView("euro"), u'€'},
    NamedCharacter{QLatin1StringView("sect"), u'§'},
    NamedCharacter{QLatin1StringView("larr"), u'←'},
    NamedCharacter{QLatin1StringView("rarr"), u'→'},
    NamedCharacter{QLatin1StringView("eacute"), u'é'},
    NamedCharacter{QLatin1StringView("egrave"), u'è'},
    NamedCharacter{QLatin1StringView("agrave"), u'à'},
    NamedCharacter{QLatin1StringView("auml"), u'ä'},
    NamedCharacter{QLatin1StringView("ouml"), u'ö'},
    NamedCharacter{QLatin1StringView("uuml"), u'ü'},
    NamedCharacter{QLatin1StringView("szlig"), u'ß'},
    NamedCharacter{QLatin1StringView("ccedil"), u'ç'},
    NamedCharacter{QLatin1StringView("ntilde"), u'ñ'},
};

QString numberedCharacter(QStringView digits)
{
    const bool isHexadecimal = digits.startsWith(u'x', Qt::CaseInsensitive);
    bool reads = false;
    const uint code =
        isHexadecimal ? digits.sliced(1).toUInt(&reads, 16) : digits.toUInt(&reads, 10);
    const bool isCharacter =
        reads && code >= u' ' && code <= 0x10FFFF && !(code >= 0xD800 && code <= 0xDFFF);
    return isCharacter ? QString::fromUcs4(reinterpret_cast<const char32_t*>(&code), 1) : QString();
}

/// What a reference such as "&amp;" stands for, and how long it is; its own "&" where it is none.
struct Reference
{
    QString text;
    qsizetype length;
};

Reference referenceAt(QStringView html, qsizetype start)
{
    constexpr qsizetype longest = 12;
    const qsizetype end = html.sliced(start, std::min(longest, html.size() - start)).indexOf(u';');
    if (end > 1) {
        const QStringView name = html.sliced(start + 1, end - 1);
        const QString text = name.startsWith(u'#') ? numberedCharacter(name.sliced(1))
                                                   : PlainText::namedCharacter(name);
        if (!text.isEmpty()) {
            return {text, end + 1};
        }
    }
    return {u"&"_qs, 1};
}

/// Behind what begins with "<": a comment, an element that holds no words, or a tag. The same place
/// where "<" is only a character.
qsizetype behindMarkup(QStringView html, qsizetype start)
{
    const auto behind = [&](QStringView end, qsizetype from) {
        const qsizetype found = html.indexOf(end, from, Qt::CaseInsensitive);
        return found < 0 ? html.size() : found + end.size();
    };
    const QStringView rest = html.sliced(start);
    if (rest.startsWith(u"<!--")) {
        return behind(u"-->", start);
    }
    for (const QStringView wordless : {QStringView(u"script"), QStringView(u"style")}) {
        if (rest.sliced(1).startsWith(wordless, Qt::CaseInsensitive)) {
            return behind(u">", behind(u"</"_qs + wordless.toString(), start));
        }
    }
    const bool isTag =
        rest.size() > 1 && (rest[1].isLetter() || rest[1] == u'/' || rest[1] == u'!');
    return isTag ? behind(u">", start) : start;
}

/// Tags of these stand inside a word or a line; any other one ends it.
bool isInline(QStringView tag)
{
    constexpr std::array names{
        QLatin1StringView("a"),    QLatin1StringView("abbr"),   QLatin1StringView("b"),
        QLatin1StringView("code"), QLatin1StringView("em"),     QLatin1StringView("i"),
        QLatin1StringView("mark"), QLatin1StringView("small"),  QLatin1StringView("span"),
        QLatin1StringView("sub"),  QLatin1StringView("strong"), QLatin1StringView("sup"),
    };
    QStringView name = tag.sliced(1);
    if (name.startsWith(u'/')) {
        name = name.sliced(1);
    }
    const auto end =
        std::ranges::find_if(name, [](QChar character) { return !character.isLetterOrNumber(); });
    const QString element = name.first(end - name.begin()).toString().toLower();
    return std::ranges::find(names, element) != names.end();
}

} // namespace

QString PlainText::oneLine(const QString& text)
{
    return text.simplified();
}

QString PlainText::ofHtml(const QString& html)
{
    const QStringView view = html;
    QString text;
    for (qsizetype at = 0; at < view.size();) {
        if (view[at] == u'&') {
            const Reference reference = referenceAt(view, at);
            text += reference.text;
            at += reference.length;
            continue;
        }
        const qsizetype behind = view[at] == u'<' ? behindMarkup(view, at) : at;
        if (behind == at) {
            text += view[at++];
            continue;
        }
        if (!isInline(view.sliced(at, behind - at))) {
            text += u' ';
        }
        at = behind;
    }
    return oneLine(text);
}

QString PlainText::namedCharacter(QStringView name)
{
    const auto found = std::ranges::find_if(
        namedCharacters, [name](const NamedCharacter& known) { return known.name == name; });
    return found == namedCharacters.end() ? QString() : QString(QChar(found->character));
}
