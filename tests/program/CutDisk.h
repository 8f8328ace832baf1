// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileCalls.h"

#include <QByteArray>
#include <QList>
#include <QMap>

#include <map>
#include <set>

/// What a disk may hold after its power was cut at some time of the recorded calls. What was not
/// synced may be there or not, each part by itself: of a file's bytes all, some or none, of a
/// folder any of the names that came, went or took another's place.
class CutDisk
{
public:
    /// Files by path.
    using State = std::map<QByteArray, QByteArray>;

    /// @param files what is on the disk before
    explicit CutDisk(const State& files)
    {
        for (const auto& [name, bytes] : files) {
            m_names.insert(name, static_cast<int>(m_contents.size()));
            m_contents.append({bytes, bytes});
        }
        m_synced = m_names;
        remember();
    }

    /// All that may have been on the disk until now, each once.
    const std::set<State>& states() const { return m_states; }
    /// All that may be on the disk now.
    std::set<State> present() const
    {
        std::set<State> states;
        for (quint64 chosen = 0; chosen < (quint64(1) << m_changes.size()); ++chosen) {
            addStates(states, namesWith(chosen));
        }
        return states;
    }

    void make(const FileCall& call)
    {
        if (call.isMaking && !m_names.contains(call.path)) {
            change({call.path, static_cast<int>(m_contents.size()), {}});
            m_contents.append(Content());
        } else if (call.name == "write") {
            m_contents[m_names.value(call.path)].written += call.bytes;
        } else if (call.name == "renameat") {
            change({call.path, m_names.value(call.source), call.source});
        } else if (call.name == "unlinkat") {
            change({{}, none, call.path});
        } else if (call.name == "fsync") {
            sync(call.path);
        } else {
            return;
        }
        remember();
    }

private:
    static constexpr int none = -1;

    struct Content
    {
        QByteArray written;
        QByteArray synced;
    };

    // A name that comes to stand for a file, and one that goes.
    struct Change
    {
        QByteArray comes;
        int file;
        QByteArray goes;

        bool isIn(const QByteArray& folder) const
        {
            const QByteArray& name = comes.isEmpty() ? goes : comes;
            return name.first(name.lastIndexOf('/')) == folder;
        }
        void applyTo(QMap<QByteArray, int>& names) const
        {
            names.remove(goes);
            if (!comes.isEmpty()) {
                names.insert(comes, file);
            }
        }
    };

    void change(const Change& change)
    {
        change.applyTo(m_names);
        m_changes.append(change);
    }

    void sync(const QByteArray& path)
    {
        if (const auto file = m_names.constFind(path); file != m_names.cend()) {
            m_contents[*file].synced = m_contents.at(*file).written;
            return;
        }
        for (const Change& change : m_changes) {
            if (change.isIn(path)) {
                change.applyTo(m_synced);
            }
        }
        m_changes.removeIf([&path](const Change& change) { return change.isIn(path); });
    }

    QMap<QByteArray, int> namesWith(quint64 chosen) const
    {
        auto names = m_synced;
        for (qsizetype index = 0; index < m_changes.size(); ++index) {
            if ((chosen >> index & 1) != 0) {
                m_changes.at(index).applyTo(names);
            }
        }
        return names;
    }

    // With each of the contents that a file not synced may have.
    void addStates(std::set<State>& states, const QMap<QByteArray, int>& names) const
    {
        QList<State> variants{State()};
        for (auto name = names.begin(); name != names.end(); ++name) {
            QList<State> more;
            for (const QByteArray& bytes : possible(m_contents.at(*name))) {
                for (State variant : variants) {
                    variant.insert({name.key(), bytes});
                    more.append(variant);
                }
            }
            variants = more;
        }
        states.insert(variants.begin(), variants.end());
    }

    static QList<QByteArray> possible(const Content& content)
    {
        if (content.written == content.synced) {
            return {content.written};
        }
        return {content.synced, content.written.first(content.written.size() / 2),
                QByteArray(content.written.size(), '\0'), content.written};
    }

    void remember() { m_states.merge(present()); }

    QList<Content> m_contents;
    QMap<QByteArray, int> m_names;
    QMap<QByteArray, int> m_synced;
    QList<Change> m_changes;
    std::set<State> m_states;
};
