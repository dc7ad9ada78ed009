// What requests reach of the camera.
#pragma once

#include <nlohmann/json.hpp>

#include "simulator/host/live_reload.h"
#include "simulator/host/menu_loop.h"
#include "simulator/host/menu_session.h"
#include "simulator/web/event_hub.h"

namespace sim {

struct CameraParts {
    Camera& camera;
    MenuSession& session; ///< of the menu thread
    LiveReload& reload;   ///< of the menu thread
    MenuLoop& loop;
    EventHub& hub;
};

/// The camera as GET /state tells it. On the menu thread.
nlohmann::json state_json(const CameraParts& parts);

/// The channels with name and size. On any thread.
nlohmann::json channels_json(Camera& camera);

/// The keys as GET /keys tells them.
nlohmann::json keys_json();

/// The faults as GET /faults tells them.
nlohmann::json faults_json(const Faults& faults);

} // namespace sim
