#pragma once

class Suite;

// What each area of the program has to measure.
void addWindowBenches(Suite& suite);
void addListBenches(Suite& suite);
void addSortBenches(Suite& suite);
void addAddressBenches(Suite& suite);
void addImportBenches(Suite& suite);
void addPrintBenches(Suite& suite);
void addPictureBenches(Suite& suite);
void addWordsBenches(Suite& suite);
