#pragma once

class Guide;

/** One table served, from the login to the freed table. */
void playDineIn(Guide& guide);
