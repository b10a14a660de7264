/* libhoravex: prayer times of a year, qibla, Hijri dates and the moon, as the program Horavex has
 * them.
 *
 * Nothing is kept between calls, and any thread may call anything. A horavex_year never changes:
 * many threads may read one at the same time. It is the caller's, who frees it.
 *
 * Functions return HORAVEX_OK or why they have no answer; what they would have filled then stays as
 * it was. horavex_error tells it in words; each takes NULL in its place.
 *
 * Structs that begin with a size only ever grow at their end. The caller sets the size, best with
 * the INIT macro beside the struct, so that a program and a library of different versions know how
 * much of it both have. Those without one never change.
 *
 * Degrees are north and east positive. A Unix time is in seconds since 1970-01-01 00:00 in
 * Greenwich. Texts are UTF-8.
 */
#ifndef HORAVEX_H
#define HORAVEX_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The version of this header; horavex_version() has that of the library. */
#define HORAVEX_LIBRARY_VERSION "0.1.0"

typedef enum horavex_status {
    HORAVEX_OK = 0,
    HORAVEX_BAD_ARGUMENT = 1, /* a value outside its range, a NULL, a size of no version */
    HORAVEX_UNKNOWN_NAME = 2, /* there is no such zone or method */
    HORAVEX_NO_TWILIGHT = 3,  /* on a day of the year; error.day_of_year tells which */
    HORAVEX_NO_ANSWER = 4,    /* the calculation has none for these values */
    HORAVEX_NO_MEMORY = 5
} horavex_status;

typedef struct horavex_error {
    size_t size;
    int32_t status;      /* horavex_status */
    int32_t day_of_year; /* of HORAVEX_NO_TWILIGHT: 1 for the first of January; else 0 */
    char text[240];      /* one English line; empty after HORAVEX_OK */
} horavex_error;

#define HORAVEX_ERROR_INIT \
    { sizeof(horavex_error), 0, 0, "" }

/* "0.1.0" */
const char* horavex_version(void);

/* ---- A place and its clock */

typedef struct horavex_place {
    size_t size;
    double latitude;   /* degrees, -90 to 90 */
    double longitude;  /* degrees, -180 to 180 */
    const char* zone;  /* of the system's zone database, "Africa/Cairo"; NULL for the next fields */
    double utc_offset; /* hours, -12 to 12, without the hour of daylight saving */
    int32_t
        dst_first_day;    /* days of the year, 1 to 366, both included; the first one lies behind */
    int32_t dst_last_day; /* the last one in a southern summer; 0 in both for none */
} horavex_place;

#define HORAVEX_PLACE_INIT \
    { sizeof(horavex_place), 0.0, 0.0, NULL, 0.0, 0, 0 }

/* ---- How times follow from the sun */

enum { HORAVEX_FAJR, HORAVEX_SHUROOQ, HORAVEX_ZUHR, HORAVEX_ASR, HORAVEX_MAGHRIB, HORAVEX_ISHA };
#define HORAVEX_PRAYERS 6

/* Nights in which the sun does not sink to an angle. Without a rule a year that has one gives
 * HORAVEX_NO_TWILIGHT. */
enum {
    HORAVEX_NIGHTS_NONE,
    HORAVEX_NIGHTS_MIDDLE,  /* half of the night, at the most */
    HORAVEX_NIGHTS_SEVENTH, /* a seventh */
    HORAVEX_NIGHTS_ANGLE,   /* a sixtieth for each degree of the angle */
    HORAVEX_NIGHTS_NEAREST  /* the hour of the last day that had it */
};

/* Where Hijri dates come from. */
enum {
    HORAVEX_UMM_AL_QURA, /* as published for 1356 to 1500, arithmetically before and after */
    HORAVEX_ARITHMETIC
};

/* The sun of a year. */
enum {
    HORAVEX_SUN_OF_THE_DAY,
    HORAVEX_SUN_OF_THE_TABLE /* in some years that of the next day, as the program has it without
                                its option */
};

typedef struct horavex_method {
    size_t size;
    double fajr_angle;                /* degrees of depression, -90 to 90 */
    double isha_angle;                /* the same */
    double maghrib_angle;             /* 0 to 10; 0 for sunset */
    int32_t asr_shadow;               /* 1, or 2 as the Hanafi school has it */
    int32_t isha_interval;            /* minutes from Maghrib, 0 to 180; 0 for the angle */
    int32_t isha_interval_ramadan;    /* the same in Ramadan; 0 for no difference */
    int32_t minutes[HORAVEX_PRAYERS]; /* added to the times, -60 to 60 */
    int32_t nights;                   /* HORAVEX_NIGHTS_ */
    int32_t sun;                      /* HORAVEX_SUN_ */
    int32_t hijri;                    /* HORAVEX_UMM_AL_QURA or HORAVEX_ARITHMETIC */
    int32_t hijri_adjustment;         /* days added to the Hijri date, -2 to 2 */
    int32_t reserved;                 /* 0 */
} horavex_method;

/* 18 and 17 degrees, as the Muslim World League has them. */
#define HORAVEX_METHOD_INIT \
    { sizeof(horavex_method), 18.0, 17.0, 0.0, 1, 0, 0, {0, 0, 0, 0, 0, 0}, 0, 0, 0, 0, 0 }

/* Puts angles, intervals and minutes of an authority, by its key ("egypt"), into a method. What
 * the authority leaves open, the school of Asr for most, stays as it is. */
horavex_status horavex_method_take(horavex_method* method, const char* key, horavex_error* error);

/* The authorities by their place in the alphabet of keys, from 0 on; NULL behind the last one. */
const char* horavex_method_key(size_t index);
const char* horavex_method_name(size_t index);

/* ---- A year and its days */

typedef struct horavex_date {
    int32_t year;
    int32_t month; /* 1 to 12 */
    int32_t day;   /* 1 to 31 */
} horavex_date;

/* What a moment was worked out by. */
enum {
    HORAVEX_BY_NOTHING, /* it does not come; the other fields are 0 */
    HORAVEX_BY_SUN,     /* the sun stands where the method wants it */
    HORAVEX_BY_RULE,    /* a rule for nights without twilight */
    HORAVEX_BY_INTERVAL /* so long after another moment */
};

typedef struct horavex_moment {
    double hours;       /* of the local clock from the midnight that begins the day, not rounded */
    int64_t unix_time;  /* the same to the second */
    int32_t utc_offset; /* seconds that the clock is ahead of Greenwich then */
    int32_t by;         /* HORAVEX_BY_ */
} horavex_moment;

typedef struct horavex_day {
    size_t size;
    int32_t day_of_year; /* 1 for the first of January */
    horavex_date date;
    horavex_date hijri;
    int32_t reserved; /* 0 */
    horavex_moment moments[HORAVEX_PRAYERS];
} horavex_day;

/* clang-format off */
#define HORAVEX_DAY_INIT                                                                   \
    {sizeof(horavex_day), 0, {0, 0, 0}, {0, 0, 0}, 0,                                      \
     {{0.0, 0, 0, 0}, {0.0, 0, 0, 0}, {0.0, 0, 0, 0}, {0.0, 0, 0, 0}, {0.0, 0, 0, 0},      \
      {0.0, 0, 0, 0}}}
/* clang-format on */

typedef struct horavex_next {
    size_t size;
    int32_t prayer;    /* HORAVEX_FAJR or HORAVEX_ZUHR to HORAVEX_ISHA */
    int32_t day;       /* whose it is: 0 today's, 1 tomorrow's, -1 yesterday's, behind midnight */
    int64_t unix_time; /* when it comes */
} horavex_next;

#define HORAVEX_NEXT_INIT \
    { sizeof(horavex_next), 0, 0, 0 }

typedef struct horavex_year horavex_year;

/* Works out a Gregorian year, 1 to 9999. NULL may be freed. */
horavex_status horavex_year_make(const horavex_place* place, const horavex_method* method,
                                 int32_t year, horavex_year** made, horavex_error* error);
void horavex_year_free(horavex_year* year);

/* 365 or 366. */
int32_t horavex_year_days(const horavex_year* year);

horavex_status horavex_year_day(const horavex_year* year, int32_t day_of_year, horavex_day* day,
                                horavex_error* error);

/* The prayer that comes after a Unix time, whose day by the local clock is in the year. The first
 * and the last day of a year stand for those beside it. */
horavex_status horavex_year_next(const horavex_year* year, int64_t unix_time, horavex_next* next,
                                 horavex_error* error);

/* ---- The qibla */

/* The great circle to Mecca: degrees from north, east positive, -180 to 180. */
horavex_status horavex_qibla(double latitude, double longitude, double* degrees,
                             horavex_error* error);

/* ---- Hijri dates */

/* The Hijri date of a Gregorian one of the years 1 to 9999, and the Gregorian one of a Hijri date
 * from the year 1 on. calendar: HORAVEX_UMM_AL_QURA or HORAVEX_ARITHMETIC. adjustment: days added
 * to the Hijri date, -2 to 2. A date that its calendar does not have is HORAVEX_BAD_ARGUMENT. */
horavex_status horavex_hijri_of(int32_t calendar, int32_t adjustment, const horavex_date* date,
                                horavex_date* hijri, horavex_error* error);
horavex_status horavex_date_of(int32_t calendar, int32_t adjustment, const horavex_date* hijri,
                               horavex_date* date, horavex_error* error);

/* ---- The moon, from 1900 to 2100 */

enum { HORAVEX_NEW_MOON, HORAVEX_FIRST_QUARTER, HORAVEX_FULL_MOON, HORAVEX_LAST_QUARTER };

typedef struct horavex_phase {
    int64_t unix_time;
    int32_t phase;    /* HORAVEX_NEW_MOON to HORAVEX_LAST_QUARTER */
    int32_t reserved; /* 0 */
} horavex_phase;

/* All phases from a Unix time up to, not including, another, in their order. Fills as many as
 * there is room for; count takes how many there are. phases may be NULL where room is 0. */
horavex_status horavex_moon_phases(int64_t from, int64_t end, horavex_phase* phases, size_t room,
                                   size_t* count, horavex_error* error);

typedef struct horavex_moon {
    size_t size;
    double lit_part; /* of the disc, 0 to 1 */
    double ahead;    /* degrees before the sun along the ecliptic, 0 up to 360: 0 for a new moon */
    double age;      /* days since the new moon */
    double distance; /* kilometres between the centres of Earth and moon */
    double altitude; /* degrees of its centre above the horizon, without refraction */
    double bearing;  /* degrees from north by east, 0 up to 360 */
} horavex_moon;

#define HORAVEX_MOON_INIT \
    { sizeof(horavex_moon), 0.0, 0.0, 0.0, 0.0, 0.0, 0.0 }

/* The moon over a place at a Unix time. */
horavex_status horavex_moon_at(double latitude, double longitude, int64_t unix_time,
                               horavex_moon* moon, horavex_error* error);

typedef struct horavex_moon_day {
    size_t size;
    int64_t rise; /* Unix times; the first of each in the span */
    int64_t transit;
    int64_t set;
    int32_t rises; /* 1, or 0 where it does not and the time is 0 */
    int32_t transits;
    int32_t sets;
    int32_t up_at_begin; /* and for the whole span where it neither rises nor sets */
} horavex_moon_day;

#define HORAVEX_MOON_DAY_INIT \
    { sizeof(horavex_moon_day), 0, 0, 0, 0, 0, 0, 0 }

/* What the moon does over a place from a Unix time up to another, at most two days later. */
horavex_status horavex_moon_rise_set(double latitude, double longitude, int64_t from, int64_t end,
                                     horavex_moon_day* day, horavex_error* error);

#ifdef __cplusplus
}
#endif

#endif
