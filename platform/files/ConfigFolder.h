// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The folder for the program's own preferences and for the entries that start with the session: the one that
/// the environment variable `LUMIVANE_CONFIG_HOME` names, else the XDG config folder. An absolute path, read
/// from the environment at every call; the folder need not exist.
QString configFolder();
