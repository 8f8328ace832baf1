// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <functional>

/// A call by which the program reads or replaces files.
struct FileCall
{
    QByteArray name;
    /// Absolute; of a rename the new one.
    QByteArray path;
    /// Of a rename the old path.
    QByteArray source = {};
    /// What is to be written.
    QByteArray bytes = {};
    /// Whether a file is made where none is.
    bool isMaking = false;
};

/// What becomes of a call.
struct Verdict
{
    enum class Kind { Made, Failed, MadeByHalf, KilledBefore, KilledAfter };

    Kind kind = Kind::Made;
    /// With `Failed`: the error number.
    int error = 0;
};

/// Stands between this process and its calls on a folder. Linked into a program, FileCalls.cpp has
/// those calls go through here. A sync is told, but never made: no test outlives the machine.
class FileCalls
{
public:
    using Judge = std::function<Verdict(const FileCall&)>;

    /// Asks about each call on the folder, or below it, while the object lives.
    /// @param folder without links in its path
    FileCalls(QByteArray folder, Judge judge);
    ~FileCalls();
    FileCalls(const FileCalls&) = delete;
    FileCalls& operator=(const FileCalls&) = delete;

    /// Does something without asking.
    static void unasked(const std::function<void()>& act);
};
