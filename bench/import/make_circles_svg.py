#!/usr/bin/env python3
"""Writes the SVG used to time a whole --export run: N circles (default 50,000) on a grid,
in millimetres, the way a drawing program saves them (one element per line, an id and a
style on each).

    python3 bench/import/make_circles_svg.py big.svg [N]
    /usr/bin/time -v build/app/lumitra --export big.svg -o out.nc

Targets: under 0.6 s wall and under 100 MB maximum resident size for 50,000 circles.
"""
import math
import sys


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else "big.svg"
    n = int(sys.argv[2]) if len(sys.argv) > 2 else 50000
    side = int(math.ceil(math.sqrt(n)))
    pitch = 1.5
    size = side * pitch
    with open(out, "w", encoding="utf-8") as f:
        f.write('<?xml version="1.0" encoding="UTF-8" standalone="no"?>\n')
        f.write('<svg xmlns="http://www.w3.org/2000/svg" width="%gmm" height="%gmm" '
                'viewBox="0 0 %g %g" version="1.1">\n' % (size, size, size, size))
        f.write('  <g id="layer1">\n')
        for i in range(n):
            x = (i % side) * pitch + 0.75
            y = (i // side) * pitch + 0.75
            f.write('    <circle id="circle%d" cx="%.3f" cy="%.3f" r="0.5" '
                    'style="fill:none;stroke:#000000;stroke-width:0.1" />\n' % (i, x, y))
        f.write('  </g>\n</svg>\n')


if __name__ == "__main__":
    main()
