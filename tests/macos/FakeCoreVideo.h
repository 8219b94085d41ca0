#pragma once

#include <cstdint>
#include <functional>

namespace tessaline {

/// Core Video as far as the adapter uses it, with refreshes that a test makes. One link at a time.
namespace FakeCoreVideo {

enum class Creation { succeeds, fails, yieldsNothing };

/// What fails of a link that was created.
enum class Fault { none, settingTheCallback, starting };

/// What the real one leaves open: whether stopping waits for a refresh that has begun already. Here
/// it makes one, on another thread.
enum class Stopping { returnsAtOnce, waitsForRefresh };

/// Forgets everything and behaves like this from now on.
void reset(Creation creation = Creation::succeeds, Stopping stopping = Stopping::returnsAtOnce);

/// From now on.
void breakDown(Fault fault);

/// A refresh, on the calling thread. It reaches the callback even when the link is stopped or
/// released, as those of the real one may. Returns
/// whether the callback says that it succeeded.
bool refresh(std::uint64_t hostTime);

/// A call of the callback as it is set now, to be made later with a host time.
std::function<bool(std::uint64_t)> keepCall();

/// From now on the callback is called without the context that it was set with.
void loseContext();

bool isRunning();
int starts();
int stops();
int releases();

} // namespace FakeCoreVideo

} // namespace tessaline
