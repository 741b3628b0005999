#pragma once

#include "ByHand.h"
#include "support/TestDatabase.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>

/** One task done by the program and by hand, in turns, so that a busy machine slows both alike. */
struct Contest
{
    std::string task;
    std::function<void()> program;
    std::function<void()> byHand;
    /** Made ready before each round and not timed. */
    std::function<void()> prepare = [] {};
    int roundsPerTurn = 20;
};

/** Enters the contest; the benchmark program runs all that were entered. */
void enter(const Contest& contest);

/** What a benchmark program does on an installed database that is its own: lays down data and enters contests. */
void setUp(TestDatabase& database, ByHand& byHand);
