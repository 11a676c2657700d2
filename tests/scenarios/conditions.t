  $ . "$TESTDIR/setup.sh"

The table as it is read and as it is listed. Two bars in a row are one, a number sign or
a separator anywhere hides a line, a blank line is a record, the text after the last bar
is a column, values are cut to their columns but shown whole, a long line is read in
pieces, and nothing after a NUL counts.

  $ lay_blade && cat >$conditions <<'EOF'
  > # a comment
  > Emulex | "ModelA" | 19a2 | 0714 | 1C3E | 11C1 | c6 | c7 | fw | bios | c10 | c11 | DGC | A,B | x | NRB | C | x
  > |Emulex||Model of 19 letters|0x19A2||000000714|1|1|a long column 6, cut
  > 
  > Emulex|M|1|2|3|4|5|6|7|8|9|10|V|M # hidden
  > ----+--+---
  > ||
  > A|B|0|2|3|4|x|x|f|b|x|x| |blank vendor|x|9 letters|models|extra|
  > EOF
  $ printf 'A|B\0 no bar counts after a NUL|x\n%1030s||\nC|D\n||' >>$conditions
  $ rm blade/local_hba_list.out && simulated -v 5 >out
  [13]
  $ sed '1,/^HBA cond/d; /^\*/,$d' out >table && sed 's/  *|/ |/g; s/   */ /g' table
   Emulex | ModelA | 19a2 | 0714 | 1C3E | 11C1 | c6 | c7 | fw | bios | c10 | c11 | DGC | A,B | x NRB | C | x
   Emulex | Model of 19 letters | 0x19A2 | 000000714 | 1 | 1 | a long column 6, cut |
   |
   |
   A | B | 0 | 2 | 3 | 4 | x | x | f | b | x | x | | blank vendor | x 9 letters | models | extra |
   A | B |
   |
   | |
   C | D |
  
  $ awk -F '|' 'NR == 1 { for (i = 1; i <= NF; ++i) print length($i) }' table | xargs
  20 18 8 8 8 8 14 14 14 14 14 14 14 20 27 20 13
  $ sed '1,/^List/d; /^\*/,$d; s/\t/>/g; s/ *$//' out | uniq
  
  Emulex     ModelA
  >>1) DGC        A,B
  >>2) NRB        C
  
  Emulex     Model of 19 letters
  
  A          B
  >>1) 9 letters  models
  
  A          B
  
  C          D
  

An identifier that is none ends the run; in a file with CR LF line ends the last column
keeps its carriage return.

  $ holding() { printf "$1" >$conditions; }
  $ in_place_of_conditions() { rm -r $conditions && "$@" $conditions; }
  $ rows simulated lay_blade <<'EOF'
  > holding 'A|B|19A2|\n' :: -v 1 => 55
  > holding 'A|B|19A2|0714\r\n' :: -v 1 => 55
  > # A value that selects and would be cut.
  > holding '\nE|Model of 20 letters.|' :: -v 1 => 55
  > |
  > | Error line 2: Model 'Model of 20 letters.' is too long (at most 19 characters)!\nError: Fatal error!
  > holding '#\n--+--' :: -v 4 -vn x => 12 ...\nList of allowed*combinations:\n\n\n*********+*\n...
  > # Only a regular file is opened.
  > in_place_of_conditions mkdir :: --silent => 15
  > in_place_of_conditions mkfifo :: --silent => 15
  > EOF
