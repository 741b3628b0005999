#pragma once

class KorInstaller;

/**
 * Runs an installer without a parent on a thread of its own, so that the waiting window can repaint. Installer and
 * thread delete themselves; connect to the signals first. Closing the program waits for the thread.
 */
void startInstaller(KorInstaller* installer);
