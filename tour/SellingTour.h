#pragma once

class Guide;

/** A party that pays apart, a sale over the counter, and an order to take away that goes through the kitchen. */
void playSelling(Guide& guide);
