# Writes OUTPUT, the header with what is fixed when the module is built, if it would change. Run as
# cmake -DSOURCE=... -DOUTPUT=... -P. Without git the commit reads 0000000 and the date is today's.
execute_process(COMMAND git -C ${SOURCE} log -1 --format=%H
  OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE failed)
execute_process(COMMAND git -C ${SOURCE} log -1 "--date=format:%a %m/%d/%Y, %Y%m%d%H%M" --format=%cd
  OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
if(failed OR commit STREQUAL "")
  set(commit 0000000)
  string(TIMESTAMP date "%a %m/%d/%Y, %Y%m%d%H%M" UTC)
endif()
file(CONFIGURE OUTPUT ${OUTPUT} CONTENT [[
#pragma once

#define VESK_ORV_VERSION "2.1.0.178"
#define VESK_ORV_BUILD_NUMBER "131"
#define VESK_ORV_BUILD_DATE "@date@"
#define VESK_ORV_COMMIT "@commit@"
#define VESK_ORV_BRANCH "release"
]] @ONLY)
