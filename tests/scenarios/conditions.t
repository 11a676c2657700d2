  $ . "$TESTDIR/setup.sh"

The table as it is read and as it is listed. Two bars in a row are one, a number
sign or a separator anywhere hides a line, a blank line is a record, the text after
the last bar is a column, a long line is read in pieces.

  $ lay_blade && file=blade/FC_HBA_Conditions.txt && cat >$file <<'EOF'
  > # a comment
  > Emulex | "ModelA" | 19a2 | 0714 | 1C3E | 11C1 | c6 | c7 | fw | bios | c10 | c11 | DGC | A,B | x | NRB | C | x
  > |Emulex||Model with a very long name|0x19A2||000000714
  > 
  > Emulex|M|1|2|3|4|5|6|7|8|9|10|V|M # hidden
  > ----+--+---
  > ||
  > A|B|0|2|3|4|x|x|f|b|x|x| |blank vendor|x|a long vendor|models|extra|
  > EOF
  $ printf 'A|B\0 no bar counts after a NUL|x\n%1030s||\nC|D\n||' >>$file
  $ simulated -v 5 -vn x | cksum
  365774795 2543

An identifier that is none ends the run; in a file with CR LF line ends the last
column keeps its carriage return.

  $ put() { printf "$1" >$file; }
  $ rows simulated lay_blade <<'EOF'
  > put 'A|B|19A2|\n' :: -v 1 => 55
  > put 'A|B|19A2|0714\r\n' :: -v 1 => 55
  > put 'A|B|10000000000000000\n' :: -v 1 => 1 strtoul: Numerical result out of range\n
  > put '#\n--+--' :: -v 4 -vn x => 12 *combinations:\n\n\n\*\*\**
  > mkdir $file 2>/dev/null || rm $file && mkdir $file :: --silent => 15
  > rm $file && mkfifo $file :: --silent => 15
  > rm $file && ln -s FC_HBA_Conditions.txt $file :: --silent => 15
  > rm blade/local* && mkfifo blade/local_hba_list.out :: --silent => 13
  > EOF
