#pragma once

class KorInstaller;

/**
 * Runs an installer without a parent on a thread of its own, so that the window that waits for it stays paintable.
 * Installer and thread free themselves afterwards; connect the installer's signals before. A program that ends
 * meanwhile waits for it.
 */
void startInstaller(KorInstaller* installer);
