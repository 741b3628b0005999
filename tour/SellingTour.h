#pragma once

class Guide;

/** Guests who pay separately, a counter sale, and a take-away order that goes through the kitchen. */
void playSelling(Guide& guide);
