// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/AppleEvents.h"

/// Stands for System Events, the agent that keeps the login items. Backed by the user's XDG autostart folder
/// (AutostartFolder.h).
///
/// It answers three events of the core suite: 'getd' for the properties of every login item ('ppth' the path
/// as Unicode text, 'hidn' whether it is launched hidden), 'crel' for a login item at the end, and 'delo' for
/// the login item at a position counted from 1. A position means what the last 'getd' showed there; when that
/// entry is gone or another one by now, nothing is removed and the status is errAENoSuchObject.
AEEventHandler systemEventsAgent();
