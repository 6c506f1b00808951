#pragma once

class QApplication;

/// Gives the whole program its look: style, font, colours, style sheet and window picture. To be called once, before
/// the first window opens; the pictures of the forms are there from then on.
void appliqueApparence(QApplication &application);
