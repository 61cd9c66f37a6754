#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Prints what a day's rise and set of Sun, Moon and nautical twilight at one place take PyEphem, in microseconds:
the median of 15 runs."""

import statistics
import time

import ephem

RUNS = 15
DAYS = 28


def day(place, number):
    place.date = "2026/6/%d" % number
    for horizon, body in (("0", ephem.Moon()), ("0", ephem.Sun()), ("-12", ephem.Sun())):
        place.horizon = horizon
        try:
            place.next_rising(body)
            place.next_setting(body)
        except (ephem.AlwaysUpError, ephem.NeverUpError):
            pass


def main():
    place = ephem.Observer()
    place.lon, place.lat = "13.4", "52.5"
    times = []
    for _ in range(RUNS):
        begin = time.perf_counter()
        for number in range(1, DAYS + 1):
            day(place, number)
        times.append((time.perf_counter() - begin) / DAYS)
    print("%.1f" % (statistics.median(times) * 1e6))


main()
