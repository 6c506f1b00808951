#pragma once

/// Lets screen readers read the pictures of the toolbox: the time on the dial, the figure of a reel. Comes before the
/// pictures are named; once is enough.
void RendLisibleHorloge();
