#pragma once

class Guide;

/** Purchasing from the order to the stock and the return, and payments from the bill to the ledger. */
void playBackOffice(Guide& guide);
