// SPDX-License-Identifier: Apache-2.0

#include "TextRules.h"

#include "InformationProjection.h"
#include "OpenableAddress.h"

#include <algorithm>

namespace {

void hintAtOtherLanguage(const QString& text, const QString& place, Findings& findings)
{
    if (!text.trimmed().isEmpty() && !TextRules::hasChinese(text)) {
        findings.hint(place, u"这句话里没有中文：请译成中文"_qs);
    }
}

} // namespace

bool TextRules::hasChinese(const QString& text)
{
    return std::ranges::any_of(text.toUcs4(), [](char32_t character) {
        return QChar::script(character) == QChar::Script_Han;
    });
}

void TextRules::requireText(const QString& text, const QString& place, Findings& findings)
{
    if (text.trimmed().isEmpty()) {
        findings.error(place, u"是空的：请写上"_qs);
    }
}

void TextRules::requireSentence(const QString& text, const QString& place, Findings& findings)
{
    requireText(text, place, findings);
    hintAtOtherLanguage(text, place, findings);
}

void TextRules::checkSentence(const std::optional<QString>& text, const QString& place,
                              Findings& findings)
{
    if (!text) {
        return;
    }
    if (text->trimmed().isEmpty()) {
        findings.error(place, u"是空的：请写上，或者去掉这一项"_qs);
    }
    hintAtOtherLanguage(*text, place, findings);
}

void TextRules::requireAddress(const QString& address, const QString& place, Findings& findings)
{
    if (!OpenableAddress::url(address)) {
        findings.error(
            place,
            u"程序不会打开“%1”：请写 http 或 https 开头、带主机名的完整地址，不含用户名和控制字符"_qs
                .arg(address));
    }
}

bool TextRules::requireTime(const QString& time, const QString& place, Findings& findings)
{
    const bool isTime = InformationProjection::fastISOSeconds(time).has_value();
    if (!isTime) {
        findings.error(
            place, u"“%1”不是时间：请写成 2026-08-27T04:01:03.784Z 这样的 UTC 时间"_qs.arg(time));
    }
    return isTime;
}
