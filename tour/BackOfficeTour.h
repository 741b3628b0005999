#pragma once

class Guide;

/** Goods from the order to the shelf and back, and the money from the bill to the ledger. */
void playBackOffice(Guide& guide);
