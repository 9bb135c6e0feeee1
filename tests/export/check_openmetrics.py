# Reads OpenMetrics text on standard input with Debian's prometheus_client parser; prints the
# family names it found, one a line, or fails with the parser's complaint.
import sys

from prometheus_client.openmetrics.parser import text_string_to_metric_families

for family in text_string_to_metric_families(sys.stdin.read()):
    print(family.name, family.type, family.unit, len(family.samples))
