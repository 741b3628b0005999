#pragma once

/** How an order is served. */
enum OrderKind { DineOrder = 1, TakeAwayOrder = 2 };
