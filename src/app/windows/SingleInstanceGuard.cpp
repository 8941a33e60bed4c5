#include "app/SingleInstanceGuard.h"

#include "app/windows/NamedMutex.h"

namespace corvane {

struct SingleInstanceGuard::Handle {
    NamedMutex mutex{L"Global\\CorvaneClientMutex"};
};

SingleInstanceGuard::SingleInstanceGuard() : m_handle(std::make_unique<Handle>()) {}

SingleInstanceGuard::~SingleInstanceGuard() = default;

bool SingleInstanceGuard::isFirst() const {
    return m_handle->mutex.isFirst();
}

} // namespace corvane
