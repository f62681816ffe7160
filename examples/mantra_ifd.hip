fplayback -i on -r off -f 1001 -e 1100 -h 1 -t 0 -a on -k on -s 1
frange 1001 1100
set -g ACTIVETAKE = 'Main'
set -g JOB = '/projects/demo'
set -g SHOT = 'sh010'
set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 0
obj/cam1.parm {
version 0.8
res	[ 0	locks=0 ]	(	1920	1080	)
aspect	[ 0	locks=0 ]	(	1	)
}
out/mantra_ifd.parm {
version 0.8
execute	[ 0	locks=0 ]	(	0	)
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	[ f1	1001 ] 	[ f2	1100 ] 	1	)
take	[ 0	locks=0 ]	(	_current_	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
override_camerares	[ 0	locks=0 ]	(	"off"	)
res_fraction	[ 0	locks=0 ]	(	specific	)
res_override	[ 0	locks=0 ]	(	640	480	)
soho_program	[ 0	locks=0 ]	(	IFD.py	)
vm_picture	[ 0	locks=0 ]	(	$JOB/render/$SHOT/beauty.$F4.exr	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 8	locks=0 ]	(	$JOB/ifd/$SHOT/beauty.$F4.ifd	)
soho_compression	[ 0	locks=0 ]	(	ext	)
}
out/preview.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1001	1020	1	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
override_camerares	[ 0	locks=0 ]	(	"on"	)
res_fraction	[ 0	locks=0 ]	(	0.5	)
res_override	[ 0	locks=0 ]	(	640	480	)
vm_picture	[ 0	locks=0 ]	(	$JOB/preview/$SHOT/$OS.$F4.jpg	)
soho_outputmode	[ 0	locks=0 ]	(	"off"	)
}
