/* The prayers of a day in Cairo, its Hijri date and the qibla.
 *
 *   cc -o day day.c $(pkg-config --cflags --libs horavex)
 */
#include <horavex.h>
#include <stdio.h>

static const char* const names[HORAVEX_PRAYERS] = {"Fajr", "Shurooq", "Zuhr",
                                                   "Asr",  "Maghrib", "Isha"};

static void print_day(const horavex_day* day) {
    printf("%d-%02d-%02d, %d-%02d-%02d AH\n", day->date.year, day->date.month, day->date.day,
           day->hijri.year, day->hijri.month, day->hijri.day);
    for (int prayer = 0; prayer < HORAVEX_PRAYERS; ++prayer) {
        const horavex_moment* moment = &day->moments[prayer];
        if (moment->by == HORAVEX_BY_NOTHING) {
            printf("%-8s --:--\n", names[prayer]);
        } else {
            const int minutes = (int)(moment->hours * 60.0 + 0.5);
            printf("%-8s %02d:%02d\n", names[prayer], minutes / 60 % 24, minutes % 60);
        }
    }
}

int main(void) {
    horavex_error error = HORAVEX_ERROR_INIT;
    horavex_place cairo = HORAVEX_PLACE_INIT;
    cairo.latitude = 30.05;
    cairo.longitude = 31.25;
    cairo.zone = "Africa/Cairo";
    horavex_method method = HORAVEX_METHOD_INIT;

    horavex_year* year = NULL;
    horavex_day day = HORAVEX_DAY_INIT;
    double qibla = 0.0;
    if (horavex_method_take(&method, "egypt", &error) == HORAVEX_OK &&
        horavex_year_make(&cairo, &method, 2026, &year, &error) == HORAVEX_OK &&
        horavex_year_day(year, 172, &day, &error) == HORAVEX_OK &&
        horavex_qibla(cairo.latitude, cairo.longitude, &qibla, &error) == HORAVEX_OK) {
        print_day(&day);
        printf("Qibla    %.1f degrees\n", qibla);
    } else {
        fprintf(stderr, "%s\n", error.text);
    }
    horavex_year_free(year);
    return error.status;
}
