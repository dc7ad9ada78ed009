// What happens in the camera, told as it happens.
#pragma once

#include <string>

#include "simulator/base/listeners.h"

namespace sim {

/// One thing that happened:
///   key NAME             a key is pressed; what follows up to the next one is its doing
///   page NAME            the document of a page was read
///   business KEY=VALUE   the menu applies a value; business KEY where there is none, such as a button
///   set KEY=VALUE        the menu stores a value itself
///   language NAME        the camera speaks another language from now on
///   definitions          the settings have other definitions from now on
///   show, hide           the menu was pushed to all channels, or taken away from them
struct Event {
    std::string kind;
    std::string what; ///< may be empty
};

inline std::string to_line(const Event& event)
{
    return event.what.empty() ? event.kind : event.kind + " " + event.what;
}

/// All calls are made on the thread that presses the keys.
using Events = Listeners<Event>;

} // namespace sim
