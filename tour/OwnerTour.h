#pragma once

class Guide;

/** The owner's tasks: reports, rights, printers, and the backup. */
void playOwner(Guide& guide);
