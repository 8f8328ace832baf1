// SPDX-License-Identifier: Apache-2.0

#include "ScreenTour.h"
#include "Subject.h"

#include <QFile>
#include <QMetaEnum>
#include <QTest>

namespace {

/// The roles that a reader does something with.
bool isForUse(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::Link:
    case QAccessible::PageTab:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
        return true;
    default:
        return false;
    }
}

QString roleName(QAccessible::Role role)
{
    return QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
}

QString stateNames(const QAccessible::State& state)
{
    QStringList names;
    if (state.disabled) {
        names.append(u"disabled"_qs);
    }
    if (state.focused) {
        names.append(u"focused"_qs);
    }
    if (state.checked) {
        names.append(u"checked"_qs);
    }
    if (state.selected) {
        names.append(u"selected"_qs);
    }
    return names.join(u' ');
}

} // namespace

/// What a screen reader is told of every screen, held against a file that a person has read.
class AccessibilityTreeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(QStringLiteral(ACCESSIBILITY_TREES));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_expected = QString::fromUtf8(file.readAll());
        QFile::remove(actualFile());
    }

    void everyScreen_data() { ScreenTour::addRows(); }

    void everyScreen()
    {
        QFETCH(const ScreenTour::Stop, stop);
        ScreenTour::Visit visit(stop);
        m_incomplete.clear();
        QString tree = u"== %1 ==\n"_qs.arg(stop.name);
        auto* const root = QAccessible::queryAccessibleInterface(visit.window().window());
        for (int i = 0; i < root->childCount(); ++i) {
            write(*root->child(i), 0, tree);
        }
        tree += u'\n';
        QCOMPARE(m_incomplete.join(u'\n'), QString());

        QFile actual(actualFile());
        QVERIFY(actual.open(QIODevice::Append));
        actual.write(tree.toUtf8());
        QVERIFY2(m_expected.contains(tree),
                 qPrintable(u"The tree has changed. Compare %1 with %2."_qs.arg(
                     actualFile(), QStringLiteral(ACCESSIBILITY_TREES))));
    }

private:
    static QString actualFile() { return u"accessibility-trees.txt"_qs; }

    void write(QAccessibleInterface& element, int depth, QString& tree)
    {
        const auto state = element.state();
        if (state.invisible) {
            return;
        }
        const auto name = element.text(QAccessible::Name);
        const auto role = element.role();
        if ((state.focusable || isForUse(role)) &&
            (name.isEmpty() || role == QAccessible::NoRole || role == QAccessible::Client)) {
            m_incomplete.append(roleName(role) + u' ' + name);
        }
        QStringList parts{roleName(role)};
        if (!name.isEmpty()) {
            parts.append(u'"' + name + u'"');
        }
        if (const auto description = element.text(QAccessible::Description);
            !description.isEmpty()) {
            parts.append(u'(' + QString(description).replace(u'\n', u" / "_qs) + u')');
        }
        if (const auto states = stateNames(state); !states.isEmpty()) {
            parts.append(u'[' + states + u']');
        }
        tree += QString(2 * depth, u' ') + parts.join(u' ') + u'\n';
        for (int i = 0; i < element.childCount(); ++i) {
            write(*element.child(i), depth + 1, tree);
        }
    }

    QString m_expected;
    QStringList m_incomplete;
};

TEST_SUBJECT(AccessibilityTreeTest)
#include "AccessibilityTreeTest.moc"
