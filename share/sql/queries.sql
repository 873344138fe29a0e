-- Questions that a fleet is asked, for SQLite, PostgreSQL and DuckDB alike, on the views of views.sql.

-- How are the machines?
SELECT level, count(*) FROM machines GROUP BY level ORDER BY 2, 1;

-- What is wrong, and what is to be done?
SELECT machine, level, headline, action FROM incidents WHERE level IN ('critical', 'warning') ORDER BY level, machine;

-- Which machines have not reported since a day?
SELECT machine, collected FROM machines WHERE collected < '2026-11-14' ORDER BY collected;

-- Which models of disks fail, with which firmware?
SELECT model, firmware, count(*), sum(CASE WHEN condition = 'failed' THEN 1 ELSE 0 END),
  sum(CASE WHEN condition = 'predicted' THEN 1 ELSE 0 END)
FROM disks GROUP BY model, firmware ORDER BY 4 DESC, 5 DESC, 1, 2;

-- Which firmware is where?
SELECT kind, model, firmware, objects, machines FROM firmware ORDER BY kind, model, firmware;

-- Which controllers do not have the firmware that most of their model have?
SELECT c.machine, c.controller, c.model, c.firmware FROM controllers c
WHERE (SELECT count(*) FROM controllers s WHERE s.model = c.model AND s.firmware = c.firmware) * 2
  < (SELECT count(*) FROM controllers m WHERE m.model = c.model)
ORDER BY c.machine, c.controller;

-- Which serial numbers are in more than one machine?
SELECT serial_number, count(DISTINCT machine), min(machine), max(machine) FROM disks
GROUP BY serial_number HAVING count(DISTINCT machine) > 1 ORDER BY serial_number;

-- Which disks have moved?
SELECT DISTINCT d.serial_number, h.machine, h.location, d.machine, d.location
FROM disks d JOIN disk_history h ON h.serial_number = d.serial_number AND h.collected < d.collected
WHERE h.machine <> d.machine OR h.location <> d.location ORDER BY d.serial_number, h.machine;

-- Which parts are to be ordered?
SELECT fru, model, count(*) FROM disks WHERE condition IN ('failed', 'predicted') GROUP BY fru, model ORDER BY fru;

-- Which machines have no spare disk?
SELECT m.machine FROM machines m
WHERE NOT EXISTS (SELECT 1 FROM disks d WHERE d.machine = m.machine AND lower(d.state) LIKE '%spare%')
ORDER BY m.machine;

-- How much have the disks of each model, in gigabytes?
SELECT model, CAST(round(sum(bytes) / 1000000000.0) AS bigint) FROM disks GROUP BY model ORDER BY model;

-- Which files could not be read?
SELECT count(*) FROM damaged_files;
