#!/usr/bin/env bash
#SBATCH --job-name=years
#SBATCH --array=0-15
#SBATCH --cpus-per-task=4
#SBATCH --output=years-%A-%a.log
# The years of many places as an array of tasks, each of which takes its share of the lines, one
# after the other. A task that is started again goes on where it ended. Without a scheduler it is
# one task that takes all of them.
#
# Usage: sbatch years_array.sh PLACES.csv YEAR FOLDER
#        cat FOLDER/years-*.jsonl      # all years, in the order of the places
#
# PLACES.csv: a head, and a line each place. Task k writes FOLDER/years-000k.jsonl.
set -euo pipefail
places=$1 year=$2 folder=$3
task=${SLURM_ARRAY_TASK_ID:-0} tasks=${SLURM_ARRAY_TASK_COUNT:-1}
lines=$(($(wc -l <"$places") - 1))
share=$(((lines + tasks - 1) / tasks))
first=$((task * share + 2)) # of the task's lines; the head is line 1
awk -v first="$first" -v end="$((first + share))" 'NR == 1 || (NR >= first && NR < end)' "$places" |
    horavexctl years --from - --year "$year" --jobs "${SLURM_CPUS_PER_TASK:-1}" --resume \
        --output "$folder/$(printf 'years-%04d.jsonl' "$task")"
