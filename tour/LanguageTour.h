#pragma once

class Guide;

/** The program in Indonesian, selected in its menu: the pages in two screen sizes, and their forms. */
void playLanguage(Guide& guide);
