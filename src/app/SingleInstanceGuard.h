#pragma once

#include <memory>

namespace corvane {

/// Marks this process as the one running copy of the program, until it ends: on Windows of the
/// machine, on Linux of the user. One implementation per platform.
class SingleInstanceGuard {
public:
    SingleInstanceGuard();
    ~SingleInstanceGuard();
    SingleInstanceGuard(const SingleInstanceGuard&) = delete;
    SingleInstanceGuard& operator=(const SingleInstanceGuard&) = delete;

    /// False when another copy is running.
    bool isFirst() const;

private:
    struct Handle;
    std::unique_ptr<Handle> m_handle;
};

} // namespace corvane
