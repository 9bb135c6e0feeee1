// Room for the files the collectors keep open between samples.
#pragma once

// Raises the process's soft limit of open files towards its hard limit (at most 8192).
void raiseOpenFileLimit();
