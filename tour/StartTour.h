#pragma once

class Guide;

/** How long the program takes to its login, and from there to its main window. */
void playStart(Guide& guide);
