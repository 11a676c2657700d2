  $ . "$TESTDIR/setup.sh"

The table as it is read and as it is listed. Two bars in a row are one, a number sign or
a separator anywhere hides a line, a blank line is a record, the text after the last bar
is a column, values are cut to their columns but shown whole, a long line is read in
pieces, and nothing after a NUL counts.

  $ lay_blade && cat >$conditions <<'EOF'
  > # a comment
  > Emulex | "ModelA" | 19a2 | 0714 | 1C3E | 11C1 | c6 | c7 | fw | bios | c10 | c11 | DGC | A,B | x | NRB | C | x
  > |Emulex||Model with a very long name|0x19A2||000000714
  > 
  > Emulex|M|1|2|3|4|5|6|7|8|9|10|V|M # hidden
  > ----+--+---
  > ||
  > A|B|0|2|3|4|x|x|f|b|x|x| |blank vendor|x|a long vendor|models|extra|
  > EOF
  $ printf 'A|B\0 no bar counts after a NUL|x\n%1030s||\nC|D\n||' >>$conditions
  $ rm blade/local_hba_list.out && simulated -v 5 >out
  [13]
  $ sed '1,/^HBA cond/d; /^\*/,$d' out >table && sed 's/  *|/ |/g; s/   */ /g' table
   Emulex | ModelA | 19a2 | 0714 | 1C3E | 11C1 | c6 | c7 | fw | bios | c10 | c11 | DGC | A,B | x NRB | C | x
   Emulex | Model with a very long name | 0x19A2 | 000000714 |
   |
   |
   A | B | 0 | 2 | 3 | 4 | x | x | f | b | x | x | | blank vendor | x a long vendor | models | extra |
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
  
  Emulex     Model with a very l
  
  A          B
  >>1) a long ve  models
  
  A          B
  
  C          D
  

An identifier that is none ends the run; in a file with CR LF line ends the last column
keeps its carriage return.

  $ holding() { printf "$1" >$conditions; }
  $ in_place_of_conditions() { rm -r $conditions && "$@" $conditions; }
  $ rows simulated lay_blade <<'EOF'
  > holding 'A|B|19A2|\n' :: -v 1 => 55
  > holding 'A|B|19A2|0714\r\n' :: -v 1 => 55
  > holding '#\n--+--' :: -v 4 -vn x => 12 ...\nList of allowed*combinations:\n\n\n*********+*\n...
  > # Only a regular file is opened.
  > in_place_of_conditions mkdir :: --silent => 15
  > in_place_of_conditions mkfifo :: --silent => 15
  > EOF
