// SPDX-License-Identifier: Apache-2.0

/// What the leak sanitizer reads at the end. A thread of Qt that has used TLS is waited for, but
/// not until its last moment: when the process ends within that, OpenSSL no longer frees what it
/// keeps for the thread.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libcrypto.so";
}
