#!/bin/sh
# What qel-dates prints, and its exit codes. Takes the path of the program.
set -u
. "$(dirname "$0")/expect.sh"

usage='usage: qel-dates DD/MM/YYYY [DD/MM/YYYY]'

expect 0 "$usage" --help
expect 0 '21/11/2012  Wed' 21/11/2012
expect 0 '21/11/2012  Wed
25/12/2012  Tue
From 21/11/2012 to 25/12/2012: 34 days' 21/11/2012 25/12/2012
expect 0 '25/12/2012  Tue
21/11/2012  Wed
From 25/12/2012 to 21/11/2012: -34 days' 25/12/2012 21/11/2012
expect 0 '29/02/2012  Wed
01/03/2012  Thu
From 29/02/2012 to 01/03/2012: 1 day' 29/02/2012 01/03/2012
# Across every change of daylight saving, and out of the range of the C library.
expect 0 '01/07/1969  Tue
01/07/2040  Sun
From 01/07/1969 to 01/07/2040: 25933 days' 01/07/1969 01/07/2040

expect 0 '01/01/1970  Thu' 01/01/1970
expect 0 '21/11/0100  Sun
31/12/9999  Fri
From 21/11/0100 to 31/12/9999: 3615575 days' 21/11/0100 31/12/9999

no_date='is no date; write DD/MM/YYYY, with a year from 0100 on'
expect 2 "$usage"
expect 2 "$usage" 21/11/2012 22/11/2012 23/11/2012
expect 2 "qel-dates: '21-11-2012' $no_date" 21-11-2012
expect 2 "qel-dates: '21/11/0099' $no_date" 21/11/0099
expect 2 "qel-dates: 'tomorrow' $no_date" 21/11/2012 tomorrow
# Days that their month has not.
expect 2 "qel-dates: '31/02/2012' $no_date" 31/02/2012
expect 2 "qel-dates: '29/02/2100' $no_date" 29/02/2100
# Forms that the library reads, or nearly.
for text in 21112012 '21\11\2012' //21112012 5./11/2012 21/11/2012/ ''; do
    expect 2 "qel-dates: '$text' $no_date" "$text"
done

expect_complaint_on_stderr tomorrow

[ "$failures" = 0 ]
