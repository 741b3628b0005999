#pragma once

class Conversion;
class LegacyRow;

/** Each function converts one row of a table of the former system into one record. */
namespace MasterSteps
{
void company(Conversion& run, const LegacyRow& row);
void itemType(Conversion& run, const LegacyRow& row);
void unit(Conversion& run, const LegacyRow& row);
void supplier(Conversion& run, const LegacyRow& row);
void member(Conversion& run, const LegacyRow& row);
void agent(Conversion& run, const LegacyRow& row);
void employee(Conversion& run, const LegacyRow& row);
void item(Conversion& run, const LegacyRow& row);
} // namespace MasterSteps
