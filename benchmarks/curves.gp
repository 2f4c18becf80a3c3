# Plots the output of curves.py.
#
# gnuplot -c curves.gp DATA TIMES.svg MEMORY.svg

set terminal svg size 720,400 font "sans-serif,13" background "white"
set logscale x
set format x "%.0s%c"
set xlabel "behaviors"
set key outside right top
set grid linecolor "#dddddd"
set border 3
set tics nomirror
set style data linespoints
set style line 1 linecolor "#1f6fb4" linewidth 2 pointtype 7 pointsize 0.5
set style line 2 linecolor "#c8501e" linewidth 2 pointtype 7 pointsize 0.5
set style line 3 linecolor "#2e8b57" linewidth 2 pointtype 7 pointsize 0.5
set style line 4 linecolor "#7a52a3" linewidth 2 pointtype 7 pointsize 0.5

set output ARG2
set ylabel "microseconds per behavior"
set yrange [0:]
plot ARG1 using 1:2 linestyle 1 title "load", \
     "" using 1:3 linestyle 2 title "save", \
     "" using 1:4 linestyle 3 title "make models", \
     "" using 1:5 linestyle 4 title "validate"

set output ARG3
set ylabel "kilobytes per behavior"
set yrange [0:16]
plot ARG1 using 1:($6 / 1000) linestyle 1 title "file", \
     "" using 1:($7 / 1000) linestyle 2 title "peak of a load", \
     "" using 1:($8 / 1000) linestyle 3 title "models"
