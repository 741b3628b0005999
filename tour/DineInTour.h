#pragma once

class Guide;

/** Serves one table, from the login to the free table. */
void playDineIn(Guide& guide);
