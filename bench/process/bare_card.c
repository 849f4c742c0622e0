/* bare_card DATABASE EMPLOYEE FROM TO: the time card of one employee with nothing but the engine between the file and the terminal. It opens
   and holds the file, fetches the period (texts as stored, both ends included), sums by the day rules and prints. */
#include <sqlite3.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const double kRegularHours = 8.0;

static sqlite3* database;

static void Require(int code)
{
    if (code != SQLITE_OK) {
        fprintf(stderr, "bare_card: %s\n", sqlite3_errmsg(database));
        exit(1);
    }
}

static int Minute(const char* stored)
{
    return atoi(stored + 11) * 60 + atoi(stored + 14);
}

static sqlite3_stmt* Prepare(const char* sql)
{
    sqlite3_stmt* statement = NULL;
    Require(sqlite3_prepare_v2(database, sql, -1, &statement, NULL));
    return statement;
}

static void AddDay(double day, double* regular, double* overtime)
{
    *regular += day < kRegularHours ? day : kRegularHours;
    *overtime += day < kRegularHours ? 0 : day - kRegularHours;
}

static void PrintCard(sqlite3_stmt* employee, sqlite3_stmt* shifts)
{
    const double rate = sqlite3_column_double(employee, 3);
    const double overtimeRate = sqlite3_column_double(employee, 4);
    char date[11] = "";
    double day = 0;
    double regular = 0;
    double overtime = 0;
    printf("Employee: %s %s\n\tStart Time\t\tEnd Time\t\tHours\n\n", (const char*)sqlite3_column_text(employee, 1),
           (const char*)sqlite3_column_text(employee, 2));
    while (sqlite3_step(shifts) == SQLITE_ROW) {
        const char* start = (const char*)sqlite3_column_text(shifts, 0);
        const char* end = (const char*)sqlite3_column_text(shifts, 1);
        const double hours = (Minute(end) - Minute(start)) / 60.0;
        if (strncmp(date, start, 10) != 0) {
            AddDay(day, &regular, &overtime);
            day = 0;
            memcpy(date, start, 10);
        }
        day += hours;
        printf("\t%.16s\t%.16s\t%.2f\n", start, end, hours);
    }
    AddDay(day, &regular, &overtime);
    printf("\n\tRegular: \t\t\t%.2f\n\tOvertime: \t\t\t%.2f\n\tGross Pay: \t\t\t%.2f\n", regular, overtime,
           regular * rate + overtime * overtimeRate);
}

int main(int argc, char** argv)
{
    if (argc != 5) {
        fputs("usage: bare_card DATABASE EMPLOYEE FROM TO\n", stderr);
        return 2;
    }
    Require(sqlite3_open_v2(argv[1], &database, SQLITE_OPEN_READWRITE, NULL));
    Require(sqlite3_exec(database, "BEGIN EXCLUSIVE", NULL, NULL, NULL));
    sqlite3_stmt* employee =
        Prepare("SELECT EmployeeID, FirstName, LastName, PayRate, OvertimePayRate FROM Employee WHERE EmployeeID = ?1");
    sqlite3_bind_int(employee, 1, atoi(argv[2]));
    sqlite3_stmt* shifts = Prepare("SELECT StartTime, EndTime FROM TimeRecord WHERE EmployeeID = ?1 AND StartTime >= ?2 AND EndTime <= ?3 "
                                   "ORDER BY StartTime, EndTime");
    sqlite3_bind_int(shifts, 1, atoi(argv[2]));
    sqlite3_bind_text(shifts, 2, argv[3], -1, SQLITE_STATIC);
    sqlite3_bind_text(shifts, 3, argv[4], -1, SQLITE_STATIC);
    if (sqlite3_step(employee) != SQLITE_ROW) {
        fputs("bare_card: no such employee\n", stderr);
        return 1;
    }
    PrintCard(employee, shifts);
    sqlite3_finalize(employee);
    sqlite3_finalize(shifts);
    sqlite3_close(database);
    return 0;
}
