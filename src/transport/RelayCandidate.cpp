#include "transport/RelayCandidate.h"

namespace corvane {

const RelayCandidate* preferredRelay(std::span<const RelayCandidate> candidates) {
    const RelayCandidate* choice = nullptr;
    for (const RelayCandidate& candidate : candidates) {
        const bool better = choice != nullptr && candidate.metric >= 0 &&
                            (choice->metric < 0 || candidate.metric < choice->metric);
        if (choice == nullptr || better) {
            choice = &candidate;
        }
    }
    return choice;
}

} // namespace corvane
