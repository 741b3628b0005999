#pragma once

#include "ByHand.h"
#include "support/TestDatabase.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>

/** One task, done by the program and by hand in turns, so that a busy machine slows down both. */
struct Contest
{
    std::string task;
    std::function<void()> program;
    std::function<void()> byHand;
    /** Runs before each round; not timed. */
    std::function<void()> prepare = [] {};
    int roundsPerTurn = 20;
};

/** Registers the contest; the benchmark program runs all registered ones. */
void enter(const Contest& contest);

/** Defined by each benchmark program: inserts data into its own installed database and registers contests. */
void setUp(TestDatabase& database, ByHand& byHand);
