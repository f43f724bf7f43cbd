#!/bin/sh
# Ends the running program; its service starts it again, in its own working directory and
# environment. The service manager has told the program and all that it runs which process that is,
# so that neither root nor a search is needed.
exec kill -TERM "${SYSTEMD_EXEC_PID:?restartZellQt.sh: not run by the service}"
