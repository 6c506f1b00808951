#pragma once

/// Tells screen readers that forms are windows, and that the frames and lines drawn on them are none. Once is enough.
void DonneRolesAcces();
