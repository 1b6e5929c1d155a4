// SPDX-License-Identifier: GPL-3.0-or-later
//
// Locks, condition variables and semaphores; those of the C++ library are made of these. A try is a
// violation as well: it shows that the audio thread shares a lock with somebody. Unlocking is not
// listed, since it follows a lock.

#include "tests/support/Interpose.h"

#include <pthread.h>
#include <semaphore.h>

// The C library's headers name parameters in its own, reserved way.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)

// clang-format off
INTERPOSE(int, pthread_mutex_lock,       (pthread_mutex_t* mutex), (mutex));
INTERPOSE(int, pthread_mutex_trylock,    (pthread_mutex_t* mutex), (mutex));
INTERPOSE(int, pthread_mutex_timedlock,  (pthread_mutex_t* mutex, const timespec* until), (mutex, until));
INTERPOSE(int, pthread_mutex_clocklock,  (pthread_mutex_t* mutex, clockid_t clock, const timespec* until), (mutex, clock, until));

INTERPOSE(int, pthread_rwlock_rdlock,      (pthread_rwlock_t* lock), (lock));
INTERPOSE(int, pthread_rwlock_tryrdlock,   (pthread_rwlock_t* lock), (lock));
INTERPOSE(int, pthread_rwlock_timedrdlock, (pthread_rwlock_t* lock, const timespec* until), (lock, until));
INTERPOSE(int, pthread_rwlock_clockrdlock, (pthread_rwlock_t* lock, clockid_t clock, const timespec* until), (lock, clock, until));
INTERPOSE(int, pthread_rwlock_wrlock,      (pthread_rwlock_t* lock), (lock));
INTERPOSE(int, pthread_rwlock_trywrlock,   (pthread_rwlock_t* lock), (lock));
INTERPOSE(int, pthread_rwlock_timedwrlock, (pthread_rwlock_t* lock, const timespec* until), (lock, until));
INTERPOSE(int, pthread_rwlock_clockwrlock, (pthread_rwlock_t* lock, clockid_t clock, const timespec* until), (lock, clock, until));

INTERPOSE(int, pthread_spin_lock,    (pthread_spinlock_t* lock), (lock));
INTERPOSE(int, pthread_spin_trylock, (pthread_spinlock_t* lock), (lock));

INTERPOSE(int, pthread_cond_wait,      (pthread_cond_t* condition, pthread_mutex_t* mutex), (condition, mutex));
INTERPOSE(int, pthread_cond_timedwait, (pthread_cond_t* condition, pthread_mutex_t* mutex, const timespec* until), (condition, mutex, until));
INTERPOSE(int, pthread_cond_clockwait, (pthread_cond_t* condition, pthread_mutex_t* mutex, clockid_t clock, const timespec* until), (condition, mutex, clock, until));
INTERPOSE(int, pthread_cond_signal,    (pthread_cond_t* condition), (condition));
INTERPOSE(int, pthread_cond_broadcast, (pthread_cond_t* condition), (condition));

INTERPOSE(int, pthread_barrier_wait, (pthread_barrier_t* barrier), (barrier));
INTERPOSE(int, pthread_once,         (pthread_once_t* once, void (*routine)()), (once, routine));
INTERPOSE(int, pthread_join,         (pthread_t thread, void** result), (thread, result));

INTERPOSE(int, sem_wait,      (sem_t* semaphore), (semaphore));
INTERPOSE(int, sem_trywait,   (sem_t* semaphore), (semaphore));
INTERPOSE(int, sem_timedwait, (sem_t* semaphore, const timespec* until), (semaphore, until));
INTERPOSE(int, sem_clockwait, (sem_t* semaphore, clockid_t clock, const timespec* until), (semaphore, clock, until));
INTERPOSE(int, sem_post,      (sem_t* semaphore), (semaphore));
// clang-format on

// NOLINTEND(readability-inconsistent-declaration-parameter-name)
