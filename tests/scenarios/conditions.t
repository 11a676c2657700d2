  $ . "$TESTDIR/setup.sh"
  $ lay_blade && file=blade/FC_HBA_Conditions.txt

The table as it is read and as it is listed. Two bars in a row are one, a number
sign or a separator anywhere hides a line, a blank line is a record, and the text
behind the last bar is a column.

  $ cat >$file <<'EOF'
  > # a comment
  > Emulex | "ModelA" | 19a2 | 0714 | 1C3E | 11C1 | c6 | c7 | fw | bios | c10 | c11 | DGC | A,B | x | NRB | C | x
  > |Emulex||Model with a very long name|0x19A2||000000714
  > 
  > Emulex|M|1|2|3|4|5|6|7|8|9|10|V|M # hidden
  > ----+--+---
  > ||
  > A|B|1|2|3|4|x|x|f|b|x|x| |blank vendor|x|a long vendor|models|extra|
  > EOF
  $ printf '||' >>$file
  $ simulated -v 5 -vn x | sed -n '/^HBA/,/List of Fibre/p'
  HBA conditions file: blade/FC_HBA_Conditions.txt
               Emulex |           ModelA |   19a2 |   0714 |   1C3E |   11C1 |           c6 |           c7 |           fw |         bios |          c10 |          c11 |          DGC |                A,B |            x          NRB |                  C |            x
               Emulex | Model with a very long name | 0x19A2 | 000000714 |
                      |
                      |
                    A |                B |      1 |      2 |      3 |      4 |            x |            x |            f |            b |            x |            x |              |       blank vendor |            x a long vendor |             models |        extra              |
  
  *********+*********+*********+*********+*********+*********+*********+*********+
  
  List of allowed Fibre-Channel-Controller and Online-Storage-System combinations:
  
  Emulex     ModelA          
  \t\t1) DGC        A,B              (esc)
  \t\t2) NRB        C                (esc)
  
  Emulex     Model with a very l
  
                             
  
                             
  
  A          B               
  \t\t1) a long ve  models           (esc)
  
  
  *********+*********+*********+*********+*********+*********+*********+*********+
  
  ******************************************************************************** 
  
  List of Fibre-Channel-Controller and attached Online-Storage-Systems:
  $ printf 'A|B\0 no bar counts behind a NUL|x\n|\n' >$file; simulated -v 5 -vn x | sed -n 5,6p
                    A |                B |
                      |

An identifier that is none ends the run; in a file with CR LF line ends the last
column keeps its carriage return.

  $ refuse() { printf "$1" >$file; simulated; echo "=> $?"; }
  $ refuse 'A|B|19A2|\n'
  => 55
  $ refuse 'A|B|19A2|0714\r\n'
  => 55
  $ refuse 'A|B|80000000\n'
  => 55
  $ refuse 'A|B|-1\n'
  => 55
  $ refuse 'A|B|1|2|3|12345G\n'
  => 55
  $ refuse 'A|B|10000000000000000\n'
  strtoul: Numerical result out of range
  => 1

No file, a directory or a FIFO in its place.

  $ rm $file && simulated -v 4 -vn x
  List of input vendor-names: x
  0. Vendor: x
  env: Environment variable TMPDIR is not set.
  HBA conditions file: blade/FC_HBA_Conditions.txt
  Error: Could not open file blade/FC_HBA_Conditions.txt
  
  Cann't access file blade/FC_HBA_Conditions.txt.
  
  [15]
  $ mkdir $file && simulated --silent
  [15]
  $ rmdir $file && mkfifo $file && simulated --silent
  [15]

A long line is read in pieces, each a line of its own.

  $ rm $file && printf 'A|B|1|2|3|4|%01005d|\nC|D\n' 0 >$file
  $ simulated -v 4 -vn x | sed -n '/allowed/,/^\*\*/p'
  List of allowed Fibre-Channel-Controller and Online-Storage-System combinations:
  
  A          B               
  
  C          D               
  
  
  *********+*********+*********+*********+*********+*********+*********+*********+
