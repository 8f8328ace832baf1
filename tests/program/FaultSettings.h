#pragma once

/// The environment that tells the preloaded fault library what to do. Unset, it does nothing.
namespace FaultSettings {

/// Calls on this folder, without links in its path, and on what lies below it are numbered from 1.
inline constexpr const char* folder = "CORVANITE_FAULT_FOLDER";

/// "NUMBER FAULT;NUMBER FAULT;…": what is to happen at which call. A FAULT is an error number, or
/// "short" (a write of half the bytes), "kill-before" or "kill-after" (the call).
inline constexpr const char* plan = "CORVANITE_FAULT_PLAN";

/// A file that gets a line for each call, its name, with " !" after it where a fault was injected.
inline constexpr const char* trace = "CORVANITE_FAULT_TRACE";

} // namespace FaultSettings
