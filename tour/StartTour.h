#pragma once

class Guide;

/** Measures the time to the login and from there to the main window. */
void playStart(Guide& guide);
