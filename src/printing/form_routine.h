#pragma once

#include "printing/pen.h"
#include "printing/position.h"
#include "records/client_database.h"

#include <functional>

// What tells one print routine from its sisters, as data. The order of the steps stands once, in printOne and
// printEach.
struct FormRoutine {
    Run run;
    QStringView jobTitle; // names the file of a PDF
    FailureWay failureWay;
    PageRequest page = {};
    TrackDefault track = TrackDefault::leave;

    // Of batches alone:
    QStringView noun = {};             // what one page is, for the summary in the print dialog: "csekk"
    bool printsAmount = false;         // the summary counts missing and too large amounts
    bool asksForPrinter = false;       // shows the print dialog; else many pages are asked for
    bool opensPerClient = false;       // sets the page up for each client anew, not once for the job
    bool allRowsWhenAutomatic = false; // takes all rows of the list while automatic printing is switched on
    bool readsTwin = true;             // else the client's twin record is zero, and its file stays closed
    bool takesClientsOut = false;      // its clients leave the list while the settings say so (chkPrintDel)
};

using PrintForm = std::function<void(Pen&, const Set&)>;
using PrintClient = std::function<void(Pen&, const Set&, const Client&)>;

// One form, its data from the tab. `missing` is the box that rejects the job where its main data are missing.
PrintOutcome printOne(const PrintDesk& desk, const FormRoutine& routine, const PrintForm& print,
                      const std::optional<Message>& missing = {});

// One form for each selected row, in the order of the list; clients are read fresh. A number that the 16 bits of a
// record number cannot hold, or none at all, is error 6 before the first page, and never becomes a page.
PrintOutcome printEach(const PrintDesk& desk, const FormRoutine& routine, const ListRows& rows,
                       const PrintClient& print);

// Before the first page of a list of clients: notes that there is none. A number that cannot be a record number is
// error 6, "Túlcsordulás".
void checkNumbers(Pen& pen, const std::vector<int>& numbers);

// Before the first page of a job without a print dialog: many pages are asked for, and a no drops the job. Automatic
// printing isn't asked.
void askForManyPages(Pen& pen, const PrintDesk& desk, int pages);
