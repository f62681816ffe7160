fplayback -i on -r off -f 1 -e 48 -h 1 -t 0 -a on -k on -s 1
frange 1 48
set -g JOB = '/projects/demo'
set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 0
obj/cam1.parm {
res	[ 0	locks=0 ]	(	1920	1080	)
}
out/mantra1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/$HIPNAME.$F4.exr"	)
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1	48	1	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
}
