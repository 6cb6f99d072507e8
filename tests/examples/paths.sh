#!/bin/sh
# What qel-paths prints, and its exit codes. Takes the path of the program.
set -u
. "$(dirname "$0")/expect.sh"

usage='usage: qel-paths PATH'

expect 0 "$usage" --help
expect 0 'path                              my.folder\no-such/file.txt
parent folder                     my.folder\no-such
file name                         file.txt
extension                         txt
file name without extension       file
full file name without extension  my.folder\no-such/file
absolute                          no
real path                         my.folder\no-such/file.txt
Unix style                        my.folder/no-such/file.txt
Windows style                     my.folder\no-such\file.txt' 'my.folder\no-such/file.txt'
expect 0 'path                              /../dev
parent folder                     /..
file name                         dev
extension                         /dev
file name without extension       dev
full file name without extension  /.
absolute                          yes
real path                         /dev
Unix style                        /../dev
Windows style                     \..\dev' /../dev

expect 2 "qel-paths: takes one path, not 0; $usage"
expect 2 "qel-paths: takes one path, not 2; $usage" a b

expect_complaint_on_stderr

[ "$failures" = 0 ]
