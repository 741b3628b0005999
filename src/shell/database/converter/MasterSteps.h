#pragma once

class Conversion;
class LegacyRow;

/** Each takes one row of a table of the former system over into one record: which column becomes what. */
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
