#pragma once

class Guide;

/** The program in Indonesian, chosen in its menu: the pages on two sizes of screen, and the forms behind them. */
void playLanguage(Guide& guide);
