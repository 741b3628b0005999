#pragma once

class Guide;

/** What the owner looks after: reports, rights, printers, and the backup. */
void playOwner(Guide& guide);
