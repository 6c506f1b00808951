#pragma once

class QApplication;
class QLocale;

/// Gives the whole program its look: style, font, colours, style sheet, window picture and French buttons. To be called
/// once, before the first window opens; the pictures of the forms are there from then on.
void appliqueApparence(QApplication &application);

/// Makes the buttons and dialogs of the system speak \p langue, and what the program says through `tr`: the buttons
/// stay English where their texts are not installed, the program's own French. French at the start.
void parleLangue(QApplication &application, const QLocale &langue);
