// The one process that is alive.
#include "easel/runtime/Process.h"

#include "easel/runtime/PickFilter.h"
#include "easel/runtime/User.h"

#include <stdexcept>

namespace easel::runtime {

namespace {

Process* gCurrent = nullptr;

} // namespace

Process::Process(const classic::StoragePlaces& places)
    : pickFilter_(filterOf(drawing::KindSet::all())),
      storage_(places, blocks_, [this](const files::Error& error, const std::string& outcome) {
          if (hasUser())
              user().tell(error, outcome);
      }) {
    if (gCurrent)
        throw std::logic_error("there is a host process already");
    gCurrent = this;
}

Process::~Process() {
    gCurrent = nullptr;
}

User& Process::user() const {
    if (!user_)
        throw std::logic_error("the host process has no user to ask");
    return *user_;
}

Process& process() {
    if (!gCurrent)
        throw std::logic_error("an operation of the host was called without a host process");
    return *gCurrent;
}

DialogDrag* dialogDrag() {
    return gCurrent != nullptr ? &gCurrent->drag() : nullptr;
}

Journal* openJournal() {
    return gCurrent && gCurrent->journal().isOn() ? &gCurrent->journal() : nullptr;
}

} // namespace easel::runtime
