"""Prints each event of an iCalendar file, read by a parser that knows nothing of this project.

A line an event: identifier, start in UTC, number of alarms, summary, between tabs.
"""
import datetime
import sys

import icalendar

with open(sys.argv[1], "rb") as file:
    calendar = icalendar.Calendar.from_ical(file.read())
if calendar.errors:
    sys.exit(str(calendar.errors))
for event in calendar.walk("VEVENT"):
    if event.errors:
        sys.exit(str(event.errors))
    start = event.decoded("DTSTART").astimezone(datetime.timezone.utc)
    alarms = [part for part in event.subcomponents if part.name == "VALARM"]
    for alarm in alarms:
        if alarm.decoded("TRIGGER") != datetime.timedelta(0):
            sys.exit("an alarm is not at the start of its event")
    print(event["UID"], start.strftime("%Y-%m-%dT%H:%M:%S"), len(alarms), event["SUMMARY"], sep="\t")
