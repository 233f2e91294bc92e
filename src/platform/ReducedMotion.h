// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the person has switched the desktop's animations off.
//
// The setting "enable-animations" of "org.gnome.desktop.interface", which the desktop portal's
// Settings interface hands out:
// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
#pragma once

namespace ReducedMotion {

// Asks the desktop in the background and follows changes. Only the first call does something.
void watch();

// False as long as the desktop has not answered.
[[nodiscard]] bool isAskedFor();

} // namespace ReducedMotion
